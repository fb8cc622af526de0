#include "commands/FoundFoods.h"

#include "commands/Session.h"
#include "foods/FoodList.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {
constexpr int KeyWidth = 14;

QString Line(const Food& food) {
    QStringList servings{food.ServA.toString(), food.ServB.toString()};
    servings.removeAll(QString());
    const QString line = FoundFoods::KeyOf(food).leftJustified(KeyWidth) + food.FoodName;
    return servings.isEmpty() ? line : QString(line + u" (" + servings.join(u" | ") + u')');
}
} // namespace

QString FoundFoods::KeyOf(const Food& food) {
    return (food.isRecipe ? u"recipe:" : u"food:") + QString::number(food.ID);
}

QJsonObject FoundFoods::Facts(const Food& food) {
    return {{"name", food.FoodName},
            {"kind", QLatin1String(food.isRecipe ? "recipe" : "food")},
            {"key", food.ID},
            {"servingA", QJsonValue::fromVariant(food.ServA)},
            {"servingB", QJsonValue::fromVariant(food.ServB)}};
}

void FoundFoods::Print(const Session& session, const FoodList& foods) {
    QJsonArray all;
    for (const Food& food : foods)
        session.json ? all.append(Facts(food)) : session.Print(Line(food));
    if (session.json)
        session.Print(QJsonObject{{"found", all}});
}
