#pragma once

#include "model/Nuts.h"

#include <QString>

/// One person: a row of `profiles` in memory, with the daily targets.
class User {
public:
    qint32 cholesterolMAX = 0;
    qint32 sodiumMAX = 0;
    bool Lactating = false; ///< no control sets it; selects a reference row
    bool Pregnant = false;  ///< no control sets it; selects a reference row
    qint32 Gender = 0;      ///< 0 female, 1 male
    qint32 Height = 0;      ///< whole inches
    Nuts RDIs;              ///< daily targets
    bool FlagCholesterol = false;
    bool FlagSodium = false;
    qint32 ActivityLevel = 0; ///< 0 Sedentary to 3 High
    qint32 DesiredWeight = 0; ///< pounds
    qint32 CurrentWeight = 0; ///< pounds
    double Age = 0;           ///< years, fractions allowed
    qint32 UID = -1;          ///< -1: no user
    QString UserName;

    /// Fills this object from the row of that key. Does not set UID: the caller does, before the
    /// call.
    void GetUserProfile(qint32 uid);

    /// Derives all targets from the person and the reference table; writes nothing to the store.
    void CreateDefaultRDIs();

    /// The user of this process, and the way back to none.
    static User& Current();
    static void ResetCurrent();
};

/// Where the setting says so: derives energy and macronutrients anew from the current user's
/// weight, writes them and the weight to the row of `profiles`, and reloads the user from it.
void RecalcTargets();
