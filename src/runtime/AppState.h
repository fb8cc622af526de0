#pragma once

#include "runtime/AppInfo.h"

#include <QDate>
#include <QString>

/// The process-wide state that every floor may read: one home, one way to reset it.
struct AppState {
    bool AppStarted =
        false; ///< False until Main has begun; drawn controls leave the databases alone until then
    struct AppInfo AppInfo;
    QDate CurrentDate; ///< the selected day, null while unset
    QString TipOfTheDay;
    QString WindowTitle; ///< title of the active screen
};

AppState& App();
void ResetApp(); ///< back to the state before start
