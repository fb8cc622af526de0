#include "model/NutrientAmounts.h"

#include "store/Recordset.h"

#include <cmath>

namespace {
QString Column(Nutrient id) {
    return QString::fromLatin1(Info(id).profileColumn);
}
} // namespace

NutrientAmounts NutrientAmounts::Of(const Recordset& row) {
    NutrientAmounts amounts;
    for (const Nutrient id : CanonicalOrder())
        if (const Field field = row[Column(id)]; !field.IsNull())
            amounts.Set(id, field.NumberOr(0));
    return amounts;
}

void NutrientAmounts::WriteTo(Recordset& row) const {
    for (const Nutrient id : CanonicalOrder())
        row.Set(Column(id), std::abs((*this)[id].value_or(0)));
}
