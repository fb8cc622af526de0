#pragma once

#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QSize>
#include <QStringList>
#include <QTemporaryDir>

/// A screen of its own that shows the windows of programs, and a hand that moves the pointer. X11
/// with or without a window manager, or a Wayland compositor, which has a window on the X11 screen.
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
    QRect Frame() const;
    void Click(QPoint place) const;
    void Press(QPoint place) const;
    void MoveTo(QPoint place) const;
    void Release() const;

private:
    void StartServer(QSize screen);
    void StartOpenbox();
    void StartWeston(QSize screen);
    QRect FrameOfX11() const;
    QRect FrameInThePicture() const;
    QString Run(const char* program, const QStringList& command) const;

    Manager kind_;
    QTemporaryDir folder_;
    QProcessEnvironment environment_;
    QProcess server_, manager_;
};
