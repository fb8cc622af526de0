#include "desktops/TestDisplay.h"

#include "desktops/ScreenPicture.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <gtest/gtest.h>

namespace {

QStringList To(QPoint place) {
    return {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())};
}

void End(QProcess& process) {
    if (process.state() != QProcess::Running)
        return;
    process.terminate();
    process.waitForFinished(-1);
}

int NumberAfter(const char* name, const QString& text) {
    const QRegularExpression line(QLatin1String(name) + QStringLiteral(": +(-?\\d+)"));
    return line.match(text).captured(1).toInt();
}

} // namespace

TestDisplay::TestDisplay(QSize screen, Manager manager)
    : kind_(manager)
    , environment_(QProcessEnvironment::systemEnvironment()) {
    environment_.remove(QStringLiteral("WAYLAND_DISPLAY"));
    StartServer(screen);
    if (manager == Manager::Openbox)
        StartOpenbox();
    if (manager == Manager::Weston)
        StartWeston(screen);
}

TestDisplay::~TestDisplay() {
    End(manager_);
    End(server_);
}

/// The server writes its number when it is ready, and keeps its picture in a file.
void TestDisplay::StartServer(QSize screen) {
    server_.start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                   QStringLiteral("0"),
                   QStringLiteral("%1x%2x24").arg(screen.width()).arg(screen.height()),
                   QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset"),
                   QStringLiteral("-fbdir"), folder_.path()});
    EXPECT_TRUE(server_.waitForReadyRead(-1));
    const QString number = QString::fromLatin1(server_.readLine().trimmed());
    environment_.insert(QStringLiteral("DISPLAY"), u':' + number);
    environment_.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
}

/// It runs the command when it manages the screen.
void TestDisplay::StartOpenbox() {
    manager_.setProcessEnvironment(environment_);
    manager_.start(QStringLiteral("openbox"),
                   {QStringLiteral("--startup"), QStringLiteral("echo ready")});
    EXPECT_TRUE(manager_.waitForReadyRead(-1));
}

void TestDisplay::StartWeston(QSize screen) {
    environment_.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder_.path());
    manager_.setProcessEnvironment(environment_);
    manager_.setStandardErrorFile(QProcess::nullDevice());
    manager_.setStandardOutputFile(QProcess::nullDevice());
    manager_.start(QStringLiteral("weston"),
                   {QStringLiteral("--backend=x11-backend.so"), QStringLiteral("--use-pixman"),
                    QStringLiteral("--no-config"), QStringLiteral("--idle-time=0"),
                    QStringLiteral("--socket=screen"),
                    QStringLiteral("--width=%1").arg(screen.width()),
                    QStringLiteral("--height=%1").arg(screen.height())});
    const QString socket = folder_.filePath(QStringLiteral("screen"));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return QFile::exists(socket) || manager_.state() == QProcess::NotRunning; }, 90'000));
    environment_.insert(QStringLiteral("WAYLAND_DISPLAY"), socket);
    environment_.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("wayland"));
}

QString TestDisplay::Run(const char* program, const QStringList& command) const {
    QProcess tool;
    tool.setProcessEnvironment(environment_);
    tool.start(QLatin1String(program), command);
    EXPECT_TRUE(tool.waitForFinished(-1));
    return QString::fromLatin1(tool.readAllStandardOutput());
}

QRect TestDisplay::Frame() const {
    return kind_ == Manager::Weston ? FrameInThePicture() : FrameOfX11();
}

QRect TestDisplay::FrameOfX11() const {
    const QString windows =
        Run("xdotool", {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                        QStringLiteral("--name"), QStringLiteral("^Halvane$")});
    if (windows.isEmpty())
        return {};
    const QString told = Run("xwininfo", {QStringLiteral("-id"), windows.section(u'\n', 0, 0)});
    return {NumberAfter("Absolute upper-left X", told), NumberAfter("Absolute upper-left Y", told),
            NumberAfter("Width", told), NumberAfter("Height", told)};
}

/// A compositor tells nobody where a window is.
QRect TestDisplay::FrameInThePicture() const {
    return ScreenPicture(folder_.filePath(QStringLiteral("Xvfb_screen0"))).Frame();
}

void TestDisplay::Click(QPoint place) const {
    Run("xdotool", To(place) + QStringList{QStringLiteral("click"), QStringLiteral("1")});
}

void TestDisplay::Press(QPoint place) const {
    Run("xdotool", To(place) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")});
}

void TestDisplay::MoveTo(QPoint place) const {
    Run("xdotool", To(place));
}

void TestDisplay::Release() const {
    Run("xdotool", {QStringLiteral("mouseup"), QStringLiteral("1")});
}
