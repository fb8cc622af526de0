#include "records/peers/StoredFood.h"

#include "records/StoredAmounts.h"
#include "store/Recordset.h"

#include <limits>

namespace {
void Append(QByteArray& key, double number) {
    key.append(reinterpret_cast<const char*>(&number), sizeof number);
}

void Append(QByteArray& key, const QString& text) {
    key.append(text.toUtf8()).append('\0');
}
} // namespace

ImportedFood StoredFood::Read(const Recordset& row) {
    return {row[QStringLiteral("FoodName")].Text(), row[QStringLiteral("Serving")].Text(),
            row[QStringLiteral("QTY")].NumberOr(0), StoredAmounts::Of(row)};
}

void StoredFood::Set(Recordset& row, const ImportedFood& food) {
    StoredAmounts::Set(row, food.amounts);
    row.Set(QStringLiteral("FoodName"), food.name);
    row.Set(QStringLiteral("Serving"), food.serving);
    row.Set(QStringLiteral("QTY"), food.quantity);
}

QByteArray StoredFood::Key(const ImportedFood& food) {
    QByteArray key;
    Append(key, food.name);
    Append(key, food.serving);
    Append(key, food.quantity);
    for (const Nutrient id : StoredOrder())
        Append(key, food.amounts[id].value_or(std::numeric_limits<double>::quiet_NaN()));
    return key;
}
