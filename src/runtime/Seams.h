#pragma once

#include <QString>

#include <functional>

class QObject;

/// Calls from lower floors to higher ones. The core implements them; a test sets its own.
struct Seams {
    std::function<bool(const QString& message, QObject* owner, bool showCancel)> ShowAlert;
    std::function<QObject*(const QString& screen)> LoadScreen;
    std::function<QObject*(const QString& screen)> ShowScreen;
    std::function<void()> ShowHome;
    std::function<void(int exitCode)> EndProcess;
};

Seams& TheSeams();

/// Shows the modal message of the program. True for OK; false for Cancel or any other way of
/// closing it. `owner` is the widget below it, or null.
bool ShowAlert(const QString& message, QObject* owner = nullptr, bool showCancel = false);

/// Brings the screen of that name (Screens::Day.name, ...) to the front and returns it. Null if no
/// screen has that name.
QObject* ShowScreen(const QString& screen);

/// Loads the screen if necessary and returns it, without showing it.
QObject* LoadScreen(const QString& screen);

void ShowHome(); ///< shows the frame frmHOME and refreshes it
void EndProcess(int exitCode = 0);
