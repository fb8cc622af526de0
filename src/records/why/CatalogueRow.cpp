#include "records/why/CatalogueRow.h"

#include "records/KeyText.h"
#include "store/Connection.h"

Recordset CatalogueRow::Of(qint32 id) {
    return {FoodDB(), QStringLiteral("SELECT * FROM FOODS WHERE ID = %1").arg(id)};
}

QString CatalogueRow::Title(const Recordset& row) {
    return row[QStringLiteral("FoodName")].Text() + u" (" +
           KeyText::Of(KeyText::Food, row[QStringLiteral("ID")].WholeOr(0)) + u')';
}

QJsonObject CatalogueRow::Facts(const Recordset& row) {
    return {{"kind", "food"},
            {"key", row[QStringLiteral("ID")].WholeOr(0)},
            {"name", row[QStringLiteral("FoodName")].Text()}};
}
