#pragma once

#include <QString>

#include <algorithm>
#include <initializer_list>
#include <span>

/// The 31 nutrients, in the order of the table. Calories stays last: the count follows from it.
enum class Nutrient {
    Selenium,
    Zinc,
    Water,
    VitaminC,
    VitaminB12,
    VitaminB6,
    VitaminE,
    VitaminA,
    Thiamin,
    Riboflavin,
    Potassium,
    Phosphorus,
    Panto,
    Niacin,
    Manganese,
    Magnesium,
    Iron,
    Folate,
    Copper,
    Calcium,
    Ash,
    Protein,
    Fiber,
    Carbs,
    Sodium,
    Cholesterol,
    MonoFat,
    PolyFat,
    SatFat,
    TotalFat,
    Calories,
};
inline constexpr int NutrientCount = static_cast<int>(Nutrient::Calories) + 1;

/// The energy of the macronutrients.
namespace KcalPerGram {
inline constexpr double Protein = 4;
inline constexpr double Carbs = 4;
inline constexpr double Fat = 9;
} // namespace KcalPerGram

/// One row of the table of nutrients. Whoever needs a name, a unit or a caption takes it from here.
struct NutrientInfo {
    Nutrient id;
    const char* property;      ///< "Carbs"
    const char* profileColumn; ///< column of `profiles` and of `FOODS`: "carbs"
    const char* rdiColumn;     ///< column of `RDI`, or null
    const char* logColumn;     ///< column of `USER_FOODS` and `Ingredients`
    const char* unit;          ///< "g", "mg", "mcg", "iu", "kcal"
    const char* factsCaption;  ///< on the facts view and the Advanced page: "Total Fat (g)"
    const char* editCaption;   ///< on the Advanced page: "Carbohydrates (g)"
    const char* chartCaption;  ///< on the daily panel and the bar chart of a period: "Total Fat"
    const char* periodUnit;    ///< on the bar chart of a period
    const char* textField;     ///< field of the Advanced page: "txtCals"
    const char* factsLabel;    ///< label of the facts view: "lblCalories"
    bool whole;                ///< Nuts rounds it to a 32-bit integer
};

std::span<const NutrientInfo, NutrientCount> Nutrients();
const NutrientInfo& Info(Nutrient id);

using NutrientOrder = std::span<const Nutrient>;
NutrientOrder CanonicalOrder(); ///< 31, with Ash first: for whoever names no other order
NutrientOrder ProfileOrder();   ///< 31, as a row of `profiles` is read and a new one is written
NutrientOrder ReferenceOrder(); ///< 20, those that have a column in `RDI`
NutrientOrder ChartOrder();     ///< 28, the rows of the daily panel
NutrientOrder PeriodOrder();    ///< 31, the rows of the bar chart of a period
NutrientOrder StoredOrder();    ///< 31, positions 1 to 31 of FOODS, USER_FOODS and Ingredients, and
                                ///< the fields of the sums

/// Whether the groups together hold each nutrient once.
constexpr bool HoldEachNutrientOnce(std::initializer_list<NutrientOrder> groups) {
    int found[NutrientCount] = {};
    for (const NutrientOrder group : groups)
        for (const Nutrient id : group)
            ++found[static_cast<int>(id)];
    return std::ranges::count(found, 1) == NutrientCount;
}

/// "SELECT Sum(T.VitaminC) AS [VitaminC],..." without the FROM clause.
QString NutrientSumSQL(const QString& table);
