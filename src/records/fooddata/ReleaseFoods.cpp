#include "records/fooddata/ReleaseFoods.h"

#include "foods/CustomFood.h"
#include "foods/release/FoodColumns.h"
#include "foods/release/FoodRelease.h"
#include "records/fooddata/FoodFilter.h"
#include "records/fooddata/FoodTally.h"
#include "records/fooddata/FoodText.h"
#include "records/fooddata/ServingAmounts.h"

namespace {
/// The columns of a release stand in the order of the table of foods.
NutrientAmounts In100(const ReleaseFood& food) {
    NutrientAmounts amounts;
    for (qsizetype i = 0; const Nutrient id : StoredOrder()) {
        const QString& text = food.nutrients[i++];
        if (!text.isEmpty())
            amounts.Set(id, text.toDouble());
    }
    return amounts;
}

CustomFood Own(const ReleaseFood& food) {
    const double grams = food.servings.a.grams.toDouble();
    const QString measure = FoodText::Allowed(food.servings.a.text);
    return {FoodText::Allowed(food.name),
            food.servings.OnlyHundredGrams()
                ? QStringLiteral("100 g")
                : FoodText::WithAmount(measure, grams, QStringLiteral("g")),
            ServingAmounts(In100(food), grams)};
}

QString Refusal(const ReleaseFood& food, const CustomFood& own) {
    return food.HasValue() ? own.FirstProblem().message
                           : QStringLiteral("not one of its amounts is known");
}

bool IsWanted(const ReleaseFood& food, const FoodFilter& filter) {
    return filter.TakesCategory(food.group) && filter.TakesName(food.name);
}
} // namespace

void ReleaseFoods::Read(const QString& folder, const FoodFilter& filter, FoodTally& tally,
                        const std::function<void(const QString&, const CustomFood&)>& take) {
    if (!filter.TakesType(QStringLiteral("sr")))
        return;
    const FoodRelease release = FoodRelease::Read(folder);
    for (const QString& number : release.Unnamed())
        tally.Refuse(QStringLiteral("FOOD_DES.txt"), 0, number,
                     QStringLiteral("it has no description"));
    for (const ReleaseFood& food : release.Foods()) {
        if (!IsWanted(food, filter))
            continue;
        const CustomFood own = Own(food);
        const QString refusal = Refusal(food, own);
        if (refusal.isEmpty())
            take(u"sr:" + food.number, own);
        else
            tally.Refuse(QStringLiteral("ABBREV.txt"), food.valuesLine, food.name, refusal);
    }
}
