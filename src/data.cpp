#include "commands/Program.h"
#include "store/StoreThreads.h"

#include <QGuiApplication>

#include <iostream>
#include <memory>
#include <span>

#ifdef Q_OS_WIN
#include <io.h>
#include <stdio.h>
#else
#include <unistd.h>
#endif

namespace {
QtMessageHandler usualWarnings = nullptr;

/// A script or a service may have no session, and nothing here needs one.
void WarnOfAllButTheSession(QtMsgType type, const QMessageLogContext& context,
                            const QString& message) {
    if (!message.contains(QLatin1String("XDG_RUNTIME_DIR")))
        usualWarnings(type, context, message);
}

/// Only a report is drawn; what drawing needs would slow the start of the other commands.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv) {
    const std::span<char*> arguments(argv, size_t(argc));
    if (!NeedsDrawing({arguments.begin(), arguments.end()}))
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen"); // there may be no display
    usualWarnings = qInstallMessageHandler(WarnOfAllButTheSession);
    return std::make_unique<QGuiApplication>(argc, argv);
}

/// Whether a person types the standard input.
bool IsTerminal() {
#ifdef Q_OS_WIN
    return _isatty(_fileno(stdin)) != 0;
#else
    return isatty(STDIN_FILENO) != 0;
#endif
}
} // namespace

int main(int argc, char** argv) {
    StoreThreads::AllocateApart();
    const std::unique_ptr<QCoreApplication> application = MakeApplication(argc, argv);
    return RunCommand(QCoreApplication::arguments(), std::cout, std::cerr,
                      IsTerminal() ? &std::cin : nullptr);
}
