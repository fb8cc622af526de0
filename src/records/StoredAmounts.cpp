#include "records/StoredAmounts.h"

#include "store/Recordset.h"

static constexpr int FirstPosition = 1;

qsizetype StoredAmounts::PlaceOf(Nutrient id) {
    return std::ranges::find(StoredOrder(), id) - StoredOrder().begin();
}

NutrientAmounts StoredAmounts::Of(const Recordset& row) {
    NutrientAmounts amounts;
    for (int position = FirstPosition; const Nutrient id : StoredOrder())
        if (const Field field = row[position++]; !field.IsNull())
            amounts.Set(id, field.NumberOr(0));
    return amounts;
}

QVariantList StoredAmounts::Values(const NutrientAmounts& amounts) {
    QVariantList values;
    for (const Nutrient id : StoredOrder())
        values << (amounts[id] ? QVariant(*amounts[id]) : QVariant());
    return values;
}

void StoredAmounts::Set(Recordset& row, const NutrientAmounts& amounts) {
    for (int position = FirstPosition; const QVariant& value : Values(amounts))
        row.Set(position++, value);
}
