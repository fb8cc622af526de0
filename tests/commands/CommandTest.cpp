#include "CommandTest.h"

#include "commands/Program.h"

#include <sstream>

void CommandTest::SetUp() {
    HalvaneTest::SetUp();
    OpenDatabases();
    CloseDatabases();
}

CommandTest::Run CommandTest::Command(const QStringList& arguments) const {
    std::ostringstream out;
    std::ostringstream error;
    const int code = RunCommand(QStringList{"halvane-data"} + arguments, out, error);
    return {code, QString::fromStdString(out.str()), QString::fromStdString(error.str())};
}
