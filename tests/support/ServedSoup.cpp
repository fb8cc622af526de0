#include "support/ServedSoup.h"

#include "model/Nutrients.h"
#include "support/ScriptedServer.h"

#include <QJsonDocument>

QString ServedSoup::RecipePath(const QString& behind) {
    return "GET /halvane/api/recipes/" + QString::number(Soup) + behind;
}

QByteArray ServedSoup::Json(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QJsonObject ServedSoup::SoupRecipe() {
    return {{"RecipeID", Soup},        {"RecipeName", "Crème of lentils"},
            {"ServingName", "1 bowl"}, {"RecipeYield", 4.5},
            {"PrepTime", 45},          {"Instructions", "Rinse.\nCook."}};
}

/// Each amount shows its row and position. The last value is the quantity.
QJsonArray ServedSoup::SoupRows() {
    QJsonArray rows;
    for (int row = 1; row <= 2; ++row) {
        QJsonArray values{row};
        for (int i = 1; i <= NutrientCount; ++i)
            values.append(i == 5 ? QJsonValue() : QJsonValue(row * 100 + i + .5));
        for (const QJsonValue& value : {QJsonValue(QString("Food %1").arg(row)),
                                        QJsonValue("1 cup"), QJsonValue(Soup), QJsonValue(7)})
            values.append(value);
        rows.append(values);
    }
    return rows;
}

QJsonArray ServedSoup::Fields() {
    QJsonArray fields{"ID"};
    for (const Nutrient id : StoredOrder())
        fields.append(Info(id).logColumn);
    for (const char* name : {"FoodName", "Serving", "RecipeID", "QTY"})
        fields.append(name);
    return fields;
}

QByteArray ServedSoup::Table(const QJsonArray& rows) {
    return Json({{"fields", Fields()}, {"rows", rows}});
}

void ServedSoup::TellSoup(ScriptedServer& server) {
    server.Tell(RecipePath(), 200, Json(SoupRecipe()));
    server.Tell(RecipePath("/ingredients"), 200, Table(SoupRows()));
}
