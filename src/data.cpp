#include "commands/Program.h"

#include <QGuiApplication>

#include <iostream>
#include <memory>
#include <span>

namespace {
/// Only a report is drawn; what drawing needs would slow the start of the other commands.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv) {
    const std::span<char*> arguments(argv, size_t(argc));
    if (!NeedsDrawing({arguments.begin(), arguments.end()}))
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen"); // there may be no display
    return std::make_unique<QGuiApplication>(argc, argv);
}
} // namespace

int main(int argc, char** argv) {
    const std::unique_ptr<QCoreApplication> application = MakeApplication(argc, argv);
    return RunCommand(QCoreApplication::arguments(), std::cout, std::cerr);
}
