#pragma once

#include "analysis/EnergyShares.h"
#include "analysis/NutrientFigure.h"
#include "analysis/Period.h"
#include "analysis/WeightCurve.h"
#include "model/User.h"

#include <optional>
#include <vector>

/// All that a report of a period shows about the current user.
struct ReportFigures {
    struct Average {
        NutrientFigure figure; ///< of an average logged day
        bool known = false;    ///< at least one amount is
        double coverage = 0;   ///< 0 to 1
    };
    struct Meal {
        QString name;
        double calories = 0;
        QStringList foods; ///< "2 x 1 cup Oats"
    };
    struct Day {
        QDate day;
        std::vector<Meal> meals; ///< those with food, in the order of the meals

        double Calories() const;
    };
    struct MealShare {
        QString name;
        double part; ///< of the energy, 0 to 1
    };

    User person;
    Period period;
    int entries = 0;
    std::vector<Day> days; ///< those with food
    std::vector<Average> averages;
    EnergyShares energy = EnergyShares::NoData();
    std::vector<MealShare> meals;
    WeightCurve weights; ///< with the mean; no entries where no weight was entered

    static ReportFigures Of(const Period& period);
    /// The day counts as logged.
    bool IsLogged(QDate day) const;
    const Average& Of(Nutrient nutrient) const;
};
