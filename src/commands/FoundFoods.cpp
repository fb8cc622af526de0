#include "commands/FoundFoods.h"

#include "commands/Session.h"
#include "foods/FoodList.h"
#include "records/KeyText.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace {
constexpr int KeyWidth = 14;

QString Line(const Food& food) {
    QStringList servings{food.ServA.toString(), food.ServB.toString()};
    servings.removeAll(QString());
    const QString line =
        KeyText::OfFood(food.ID, food.isRecipe).leftJustified(KeyWidth) + food.FoodName;
    return servings.isEmpty() ? line : QString(line + u" (" + servings.join(u" | ") + u')');
}
} // namespace

QJsonObject FoundFoods::Facts(const Food& food) {
    return {{"name", food.FoodName},
            {"kind", food.isRecipe ? KeyText::Recipe : KeyText::Food},
            {"key", food.ID},
            {"servingA", QJsonValue::fromVariant(food.ServA)},
            {"servingB", QJsonValue::fromVariant(food.ServB)}};
}

void FoundFoods::Print(const Session& session, const FoodList& foods, int most) {
    if (foods.Count() > most)
        session.Tell(QStringLiteral("%1 more match.").arg(foods.Count() - most));
    QJsonArray all;
    for (int i = 1; i <= std::min(foods.Count(), most); ++i)
        session.json ? all.append(Facts(foods.Item(i))) : session.Print(Line(foods.Item(i)));
    if (session.json)
        session.Print(QJsonObject{{"found", all}});
}
