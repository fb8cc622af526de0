#pragma once

#include "model/Nuts.h"

#include <QString>

/// One person: a row of `profiles` in memory, with the daily targets.
class User {
public:
    qint32 cholesterolMAX = 0;
    qint32 sodiumMAX = 0;
    bool Lactating = false; ///< selects a reference row; no screen sets it
    bool Pregnant = false;  ///< selects a reference row; no screen sets it
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

    /// Reads all members but UID from the row of that key.
    void GetUserProfile(qint32 uid);

    /// Derives all targets from the person and the reference table; writes nothing to the store.
    void CreateDefaultRDIs();

    /// The one user of this process.
    static User& Current();
    static void ResetCurrent();
};

/// Adapts the targets for energy, protein, carbohydrate and fat to the current user's weight,
/// writes them and the weight to `profiles`, and reloads the user. Does nothing if the setting is
/// off.
void RecalcTargets();
