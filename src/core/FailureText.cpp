#include "core/FailureText.h"

#include "runtime/RuntimeError.h"

namespace {

struct Advice {
    int number;
    const char* text;
};

/// What the person can do, by the number of the failure.
constexpr Advice Advices[] = {
    {ErrorNumber::Overflow, "A number that was entered is too large. Please start Halvane again "
                            "and enter a smaller one."},
    {ErrorNumber::TypeMismatch,
     "A field that needs a number or a date holds something else, or nothing. Please start Halvane "
     "again and enter a plain number, or a date such as 4/3/2002, there."},
    {ErrorNumber::FileNotFound, "A file that belongs beside the program is missing. Please put it "
                                "back, or install Halvane again; your own data is not touched."},
    {ErrorNumber::InvalidUseOfNull, "A row of the database has no value where one is needed. "
                                    "Please fill it in, or bring back a copy of the file."},
    {ErrorNumber::OutOfMemory,
     "The computer has run out of memory. Please close other programs and start "
     "Halvane again."},
    {ErrorNumber::RefusedStatement,
     "A name or a search term holds a character that cannot stand there, such as "
     "an apostrophe ('). Please start Halvane again and leave it out."},
};

QString AdviceFor(int number) {
    for (const Advice& advice : Advices)
        if (advice.number == number)
            return QString::fromLatin1(advice.text);
    return QStringLiteral("Please start Halvane again.");
}

const RuntimeError* AsRuntimeError(const std::exception& error) {
    return dynamic_cast<const RuntimeError*>(&error);
}

} // namespace

int FailureText::Number(const std::exception& error) {
    const RuntimeError* known = AsRuntimeError(error);
    return known ? known->Number() : ErrorNumber::OutOfMemory;
}

QString FailureText::Description(const std::exception& error) {
    const RuntimeError* known = AsRuntimeError(error);
    return known ? known->Description() : QString::fromLocal8Bit(error.what());
}

QString FailureText::Short(const std::exception& error) {
    return Description(error) + " (" + QString::number(Number(error)) + ")";
}

QString FailureText::Unhandled(const std::exception& error) {
    return "Halvane cannot go on and will close. Everything that was saved before stays.\n\n" +
           Description(error) + "\n\n" + AdviceFor(Number(error)) + "\n\nError " +
           QString::number(Number(error));
}
