#include "records/fooddata/ServingAmounts.h"

NutrientAmounts ServingAmounts(const NutrientAmounts& in100, double serving) {
    NutrientAmounts amounts;
    for (const NutrientInfo& nutrient : Nutrients())
        if (const auto amount = in100[nutrient.id])
            amounts.Set(nutrient.id, *amount * serving / 100);
    return amounts;
}
