#include "model/NutrientAmounts.h"

#include "store/Recordset.h"

#include <cmath>

namespace {
QString Column(const NutrientInfo& nutrient) {
    return QString::fromLatin1(nutrient.profileColumn);
}
} // namespace

NutrientAmounts NutrientAmounts::Of(const Recordset& row) {
    NutrientAmounts amounts;
    for (const NutrientInfo& nutrient : Nutrients())
        if (const Field field = row[Column(nutrient)]; !field.IsNull())
            amounts.Set(nutrient.id, field.NumberOr(0));
    return amounts;
}

void NutrientAmounts::WriteTo(Recordset& row) const {
    for (const NutrientInfo& nutrient : Nutrients())
        row.Set(Column(nutrient), std::abs((*this)[nutrient.id].value_or(0)));
}
