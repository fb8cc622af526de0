#pragma once

#include "model/NutrientAmounts.h"

#include <QString>

/// What a person enters on the profile screen: a row of `profiles`, before it is known to be right.
struct Profile {
    QString userName;
    double age = 0;            ///< years, fractions allowed
    QString feet;              ///< as typed: Height takes nothing but a number
    double inches = 0;         ///< beside the feet
    double currentWeight = 0;  ///< pounds
    double desiredWeight = 0;  ///< pounds
    qint32 gender = -1;        ///< 0 female, 1 male, -1 not entered
    qint32 activityLevel = -1; ///< 0 Sedentary to 3 High, -1 not entered
    NutrientAmounts targets;

    void SetHeight(qint32 height); ///< whole inches, split into feet and inches
    double Height() const;         ///< inches; feet that are not wholly a number fail (13)

    /// The message of the first rule that the person's data break; empty if they break none. Any
    /// targets are allowed.
    QString FirstProblem() const;
};
