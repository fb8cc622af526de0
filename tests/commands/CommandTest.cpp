#include "CommandTest.h"

#include "commands/Program.h"

#include <sstream>

void CommandTest::SetUp() {
    HalvaneTest::SetUp();
    OpenDatabases();
    CloseDatabases();
}

CommandTest::Run CommandTest::Command(const QStringList& arguments, const char* answers) const {
    std::istringstream keyboard(answers);
    return Answering(arguments, &keyboard);
}

CommandTest::Run CommandTest::Answering(const QStringList& arguments, std::istream* keyboard) {
    std::ostringstream out;
    std::ostringstream error;
    const int code = RunCommand(QStringList{"halvane-data"} + arguments, out, error, keyboard);
    return {code, QString::fromStdString(out.str()), QString::fromStdString(error.str())};
}
