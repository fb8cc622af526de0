#pragma once

#include <QString>

#include <span>

/// The 31 nutrient quantities that the program follows, in the order of the record.
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
inline constexpr int NutrientCount = 31;

/// Kilocalories in a gram, wherever energy is split between the macronutrients.
namespace KcalPerGram {
inline constexpr double Protein = 4;
inline constexpr double Carbs = 4;
inline constexpr double Fat = 9;
} // namespace KcalPerGram

/// What the program knows of one nutrient: one row of the one table.
struct NutrientInfo {
    Nutrient id;
    const char* property;      ///< name in the record: "Carbs"
    const char* profileColumn; ///< column of `profiles` and of `FOODS`: "carbs"
    const char* rdiColumn;     ///< column of `RDI`, null where it has none
    const char* logColumn;     ///< column of `USER_FOODS` and `Ingredients`
    const char* unit;          ///< "g", "mg", "mcg", "iu", "kcal"
    const char* factsCaption;  ///< on the facts view and the Advanced page: "Total Fat (g)"
    const char* editCaption;   ///< on the Advanced page: "Carbohydrates (g)"
    const char* chartCaption;  ///< on the daily panel and the bar chart of a period: "Total Fat"
    const char* periodUnit;    ///< on the bar chart of a period
    const char* textField;     ///< field of the Advanced page: "txtCals"
    const char* factsLabel;    ///< label of the facts view: "lblCalories"
    bool whole;                ///< held as a 32-bit integer: rounded half to even on assignment
};

std::span<const NutrientInfo, NutrientCount> Nutrients();
const NutrientInfo& Info(Nutrient id);
const NutrientInfo*
FindNutrient(const QString& name); ///< by its name or a column's, without regard to case; or null

std::span<const Nutrient>
CanonicalOrder(); ///< 31: Ash, Calcium, ... Potassium; the profile screen's
std::span<const Nutrient>
ProfileOrder(); ///< 31: the order in which a profile row is read and written
std::span<const Nutrient>
ReferenceOrder();                        ///< 20: those that the table RDI holds, in reading order
std::span<const Nutrient> ChartOrder();  ///< 28: rows of the daily panel
std::span<const Nutrient> PeriodOrder(); ///< 31: rows of the bar chart of a period
std::span<const Nutrient>
StoredOrder(); ///< 31: positions 1 to 31 of FOODS, USER_FOODS and Ingredients, and of the sums

/// "SELECT Sum(T.VitaminC) AS [VitaminC],..." up to the last alias, without the FROM clause.
QString NutrientSumSQL(const QString& table);
