#include "commands/DateOption.h"

#include "commands/UsageError.h"

#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "runtime/RuntimeError.h"

namespace {
/// Of the ISO forms only the one with dashes: "20260302" is a number.
QDate IsoDay(const QString& text) {
    const QDate day = QDate::fromString(text, QStringLiteral("yyyy-MM-dd"));
    return day >= Dates::First() && day <= Dates::Last() ? day : QDate();
}
} // namespace

QDate DateOption::Of(const std::string& text) {
    const QString word = QString::fromStdString(text);
    if (word.compare(u"today", Qt::CaseInsensitive) == 0)
        return Clock::Today();
    if (word.compare(u"yesterday", Qt::CaseInsensitive) == 0)
        return Clock::Today().addDays(-1);
    const QDate day = IsoDay(word);
    if (!day.isValid())
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           u'"' + word +
                               u"\" is not a day. Write it as 2026-03-02, today or yesterday.");
    return day;
}

CommandOption DateOption::Add(const Command& command, const std::string& name, QDate& day,
                              const std::string& help) {
    const auto read = [name, &day](const std::string& text) {
        try {
            day = Of(text);
        } catch (const RuntimeError& wrong) {
            throw UsageError(name, wrong.Description().toStdString());
        }
    };
    return command.Take(name, read, help).Value("DAY");
}
