#pragma once

#include "runtime/AppInfo.h"

#include <QDate>
#include <QString>

/// The process-wide state that every floor may read. It has one home and one way to reset it.
struct AppState {
    bool AppStarted =
        false; ///< False until Main begins; before that, drawn controls do not use the databases
    struct AppInfo AppInfo;
    QDate CurrentDate; ///< the selected day, null while unset
    QString TipOfTheDay;
    QString WindowTitle; ///< title of the active screen
};

AppState& App();
void ResetApp(); ///< back to the state before start
