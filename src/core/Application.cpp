#include "core/Application.h"

#include "core/FailureText.h"
#include "core/HeldRecords.h"
#include "runtime/Seams.h"
#include "store/Connection.h"
#include "toolkit/MousePointer.h"
#include "toolkit/SpokenMenu.h"

#include <QMessageBox>

#include <cstdio>
#include <cstdlib>

Application::Application(int& argc, char** argv)
    : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("Halvane"));
    setApplicationVersion(QStringLiteral(HALVANE_VERSION));
    setDesktopFileName(QStringLiteral("halvane"));
    setQuitOnLastWindowClosed(false); // closing the frame runs QuitApp, and that ends the process
    SpokenMenu::Install();
    TheSeams().EndProcess = [this](int exitCode) { EndNow(exitCode); };
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        Fail(error);
    }
    return true;
}

/// The message has its own event loop, in which other screens may fail too. Those failures follow
/// from the first and are not shown.
void Application::Fail(const std::exception& error) {
    if (failing_)
        return;
    failing_ = true;
    MousePointer::SetNormal();
    const QString text = FailureText::Unhandled(error);
    std::fputs(qUtf8Printable("halvane: " + FailureText::Short(error) + '\n'), stderr);
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Halvane"), text);
    box.setTextFormat(Qt::PlainText);
    box.exec();
    EndProcess(1);
    failing_ = false;
}

void Application::EndNow(int exitCode) {
    UserDB().Close();
    FoodDB().Close();
    HeldRecords::Release();
    instance_.Release();
    std::fflush(nullptr);
    std::_Exit(exitCode);
}
