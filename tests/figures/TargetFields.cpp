#include "figures/TargetFields.h"

#include "figures/FigureLine.h"
#include "model/Nuts.h"

void AddTargets(FigureLine& line, const Nuts& targets) {
    for (const Nutrient id : StoredOrder())
        line << targets[id];
}

void AddEnergyTargets(FigureLine& line, const Nuts& targets) {
    using enum Nutrient;
    for (const Nutrient id : {Calories, Protein, Carbs, TotalFat, SatFat, MonoFat, PolyFat})
        line << targets[id];
}
