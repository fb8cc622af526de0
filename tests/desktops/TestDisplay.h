#pragma once

#include "desktops/XScreen.h"

#include <QProcess>
#include <QTemporaryDir>

#include <memory>

/// A screen of its own that shows the windows of programs, and a hand that moves the pointer. X11
/// with or without a window manager, or a Wayland compositor, which has a window on the X11 screen.
/// Its servers end with the test, even if that is killed.
class TestDisplay {
public:
    enum class Manager { None, Openbox, Weston };

    TestDisplay(QSize screen, Manager manager);
    ~TestDisplay();
    TestDisplay(const TestDisplay&) = delete;
    TestDisplay& operator=(const TestDisplay&) = delete;

    /// What programs need to show their windows here.
    const QProcessEnvironment& Environment() const { return environment_; }

    /// The place of the program's frame; null while it is not seen.
    QRect Frame(QSize size) const;
    void Reach(QPoint place) const; ///< from anywhere; it crosses the screen
    void MoveTo(QPoint place) const { screen_->MoveTo(place); }
    void Press() const { screen_->Press(); }
    void Release() const { screen_->Release(); }
    void Click(QPoint place) const;

private:
    void StartServer();
    void StartOpenbox();
    void StartWeston();
    /// The first line that a program writes when it is ready.
    static QByteArray ReadyLine(QProcess& program);

    Manager kind_;
    QSize screenSize_;
    QTemporaryDir folder_;
    QProcessEnvironment environment_;
    QProcess server_, manager_;
    std::unique_ptr<XScreen> screen_;
};
