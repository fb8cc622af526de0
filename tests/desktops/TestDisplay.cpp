#include "desktops/TestDisplay.h"

#include "desktops/FramePicture.h"
#include "desktops/Patience.h"

#include <QLocalSocket>
#include <QTest>

#include <csignal>

#include <gtest/gtest.h>
#include <sys/prctl.h>

namespace {

void EndWithTheTest(QProcess& process) {
    process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
}

void End(QProcess& process) {
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate();
    EXPECT_TRUE(process.waitForFinished(LongestWait))
        << process.program().toStdString() << " does not end";
}

bool TakesCalls(const QString& socket) {
    QLocalSocket caller;
    caller.connectToServer(socket);
    return caller.waitForConnected();
}

} // namespace

TestDisplay::TestDisplay(QSize screen, Manager manager)
    : kind_(manager)
    , screenSize_(screen)
    , environment_(QProcessEnvironment::systemEnvironment()) {
    environment_.remove(QStringLiteral("WAYLAND_DISPLAY"));
    EndWithTheTest(server_);
    EndWithTheTest(manager_);
    StartServer();
    if (manager == Manager::Openbox)
        StartOpenbox();
    if (manager == Manager::Weston)
        StartWeston();
}

TestDisplay::~TestDisplay() {
    End(manager_);
    End(server_);
}

QByteArray TestDisplay::ReadyLine(QProcess& program) {
    EXPECT_TRUE(program.waitForReadyRead(LongestWait))
        << program.program().toStdString() << " is not ready";
    return program.readLine().trimmed();
}

/// The server writes its number when it is ready.
void TestDisplay::StartServer() {
    server_.start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                   QStringLiteral("0"),
                   QStringLiteral("%1x%2x24").arg(screenSize_.width()).arg(screenSize_.height()),
                   QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset")});
    const QByteArray display = ':' + ReadyLine(server_);
    screen_ = std::make_unique<XScreen>(display);
    environment_.insert(QStringLiteral("DISPLAY"), QString::fromLatin1(display));
    environment_.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
}

/// It runs the command when it manages the screen.
void TestDisplay::StartOpenbox() {
    manager_.setProcessEnvironment(environment_);
    manager_.start(QStringLiteral("openbox"),
                   {QStringLiteral("--startup"), QStringLiteral("echo ready")});
    ReadyLine(manager_);
}

/// It is ready when its socket takes calls, which is later than when the file is there.
void TestDisplay::StartWeston() {
    environment_.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder_.path());
    manager_.setProcessEnvironment(environment_);
    manager_.setStandardErrorFile(QProcess::nullDevice());
    manager_.setStandardOutputFile(QProcess::nullDevice());
    manager_.start(QStringLiteral("weston"),
                   {QStringLiteral("--backend=x11-backend.so"), QStringLiteral("--use-pixman"),
                    QStringLiteral("--no-config"), QStringLiteral("--idle-time=0"),
                    QStringLiteral("--socket=screen"),
                    QStringLiteral("--width=%1").arg(screenSize_.width()),
                    QStringLiteral("--height=%1").arg(screenSize_.height())});
    const QString socket = folder_.filePath(QStringLiteral("screen"));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return TakesCalls(socket) || manager_.state() == QProcess::NotRunning; },
        LongestWait))
        << "weston is not ready";
    environment_.insert(QStringLiteral("WAYLAND_DISPLAY"), socket);
    environment_.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("wayland"));
}

QRect TestDisplay::Frame(QSize size) const {
    return kind_ == Manager::Weston ? FramePicture::Find(screen_->Picture(), size)
                                    : screen_->Window("Halvane", size);
}

/// The compositor adds the steps of the pointer to the place where it thinks the pointer was. In
/// the corners both places become the same.
void TestDisplay::Reach(QPoint place) const {
    for (const QPoint corner :
         {QPoint(screenSize_.width() - 1, screenSize_.height() - 1), QPoint()})
        MoveTo(corner);
    MoveTo(place);
}

void TestDisplay::Click(QPoint place) const {
    Reach(place);
    Press();
    Release();
}
