#pragma once

#include <QString>

#include <functional>

class QObject;

/// Calls that lower floors make upward. The core supplies what they do; a test supplies its own.
struct Seams {
    std::function<bool(const QString& message, QObject* owner, bool showCancel)> ShowAlert;
    std::function<QObject*(const QString& screen)> LoadScreen;
    std::function<QObject*(const QString& screen)> ShowScreen;
    std::function<void()> ShowHome;
    std::function<void(int exitCode)> EndProcess;
};

Seams& TheSeams();

/// The modal message of the program. True for OK, False for Cancel or any other way out.
/// `owner` is the widget it stands over, or null.
bool ShowAlert(const QString& message, QObject* owner = nullptr, bool showCancel = false);

/// Brings the screen registered under that name (`frmDay`, ...) to the front and returns it.
/// Null where no screen of that name is registered.
QObject* ShowScreen(const QString& screen);

/// The screen, created if it is not loaded, without bringing it forward.
QObject* LoadScreen(const QString& screen);

void ShowHome(); ///< shows the frame frmHOME and refreshes it
void EndProcess(int exitCode = 0);
