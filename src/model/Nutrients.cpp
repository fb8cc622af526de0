#include "model/Nutrients.h"

#include "store/Schema.h"

#include <string_view>

namespace {
// clang-format off
constexpr NutrientInfo Table[] = {
    {Nutrient::Selenium, "Selenium", "Selenium", "Selenium", "Selenium", "mg", "Selenium (mg)", "Selenium (mg)", "Selenium", "mg", "txtSelenium", "lblSelenium", false},
    {Nutrient::Zinc, "Zinc", "Zinc", "Zinc", "Zinc", "mg", "Zinc (mg)", "Zinc (mg)", "Zinc", "mg", "txtZinc", "lblZinc", false},
    {Nutrient::Water, "Water", "water", nullptr, "Water", "g", "Water (g)", "Water (g)", "Water", "gm", "txtWater", "lblWater", false},
    {Nutrient::VitaminC, "VitaminC", "VitaminC", "VitaminC", "VitaminC", "mg", "Vit. C (mg)", "Vit. C (mg)", "Vit. C", "mg", "txtVitC", "lblVitaminC", false},
    {Nutrient::VitaminB12, "VitaminB12", "VitaminB12", "VitaminB12", "VitaminB12", "mcg", "Vit. B12 (mcg)", "Vit. B12 (mcg)", "Vit. B12", "mcg", "txtVitB12", "lblVitaminB12", false},
    {Nutrient::VitaminB6, "VitaminB6", "VitaminB6", "VitaminB6", "VitaminB6", "mg", "Vit. B6 (mg)", "Vit. B6 (mg)", "Vit. B6", "mg", "txtVitB6", "lblVitaminB6", false},
    {Nutrient::VitaminE, "VitaminE", "VitaminE", "VitaminE", "VitaminE", "mg", "Vit. E (mg)", "Vit. E (mg)", "Vit. E", "mg", "txtVitE", "lblVitaminE", false},
    {Nutrient::VitaminA, "VitaminA", "VitaminA", "VitaminA", "VitaminA", "iu", "Via. A (iu)", "Via. A (iu)", "Vit. A", "iu", "txtVitA", "lblVitaminA", false},
    {Nutrient::Thiamin, "Thiamin", "Thiamin", "Thiamin", "Thiamin", "mg", "Thiamin (mg)", "Thiamin (mg)", "Thiamin", "mg", "txtThiamin", "lblThiamin", false},
    {Nutrient::Riboflavin, "Riboflavin", "Riboflavin", "Riboflavin", "Riboflavin", "mg", "Riboflavin (mg)", "Riboflavin (mg)", "Riboflavin", "mg", "txtRiboflavin", "lblRiboflavin", false},
    {Nutrient::Potassium, "Potassium", "Potassium", nullptr, "Potassium", "mg", "Potassium (mg)", "Potassium (mg)", "Potassium", "mg", "txtPotassium", "lblPotassium", true},
    {Nutrient::Phosphorus, "Phosphorus", "Phosphorus", "Phosphorus", "Phosphorus", "mg", "Phosphorus (mg)", "Phosphorus (mg)", "Phosphorus", "mg", "txtPhosphorus", "lblPhosphorus", true},
    {Nutrient::Panto, "Panto", "Panto", "Panto", "Panto", "mg", "Panto. Adic (mg)", "Panto. Adic (mg)", "Panto. Acid", "mg", "txtPantoAcid", "lblPantoAcid", false},
    {Nutrient::Niacin, "Niacin", "Niacin", "Niacin", "Niacin", "mg", "Niacin (mg)", "Niacin (mg)", "Niacin", "mg", "txtNiacin", "lblNiacin", false},
    {Nutrient::Manganese, "Manganese", "Manganese", "Manganese", "Manganese", "mg", "Manganese (mg)", "Manganese (mg)", "Manganese", "mg", "txtManganese", "lblManganese", false},
    {Nutrient::Magnesium, "Magnesium", "Magnesium", "Magnesium", "Magnesium", "mg", "Magnesium (mg)", "Magnesium (mg)", "Magnesium", "mg", "txtMagnesium", "lblMagnesium", true},
    {Nutrient::Iron, "Iron", "Iron", "Iron", "Iron", "mg", "Iron (mg)", "Iron (mg)", "Iron", "mg", "txtIron", "lblIron", false},
    {Nutrient::Folate, "Folate", "Folate", "Folate", "Folate", "mcg", "Folate (mcg)", "Folate (mcg)", "Folate", "mcg", "txtFolate", "lblFolate", true},
    {Nutrient::Copper, "Copper", "Copper", "Copper", "Copper", "mg", "Copper (mg)", "Copper (mg)", "Copper", "mg", "txtCopper", "lblCopper", false},
    {Nutrient::Calcium, "Calcium", "Calcium", "Calcium", "Calcium", "mg", "Calcium (mg)", "Calcium (mg)", "Calcium", "mg", "txtCalcium", "lblCalcium", true},
    {Nutrient::Ash, "Ash", "ASH", "Ash", "Ash", "g", "Ash (g)", "Ash (g)", "Ash", "g", "txtAsh", "lblAsh", false},
    {Nutrient::Protein, "Protein", "protein", nullptr, "Protein", "g", "Protein (g)", "Protein (g)", "Protein", "g", "txtProtein", "lblProtein", false},
    {Nutrient::Fiber, "Fiber", "fiber", nullptr, "fiber", "g", "Dietary Fiber (g)", "Fiber (g)", "Fiber", "g", "txtFiber", "lblFiber", false},
    {Nutrient::Carbs, "Carbs", "carbs", nullptr, "carbs", "g", "Total Carbohydrates (g)", "Carbohydrates (g)", "Carbohydrates", "g", "txtCarbs", "lblCarbs", false},
    {Nutrient::Sodium, "Sodium", "sodium", nullptr, "Sodium", "mg", "Sodium (mg)", "Sodium (mg)", "Sodium", "mg", "txtSodium", "lblSodium", true},
    {Nutrient::Cholesterol, "Cholesterol", "Cholesterol", "Cholesterol", "Cholesterol", "mg", "Cholesterol (mg)", "Cholesterol (mg)", "Cholesterol", "mg", "txtCholesterol", "lblCholesterol", true},
    {Nutrient::MonoFat, "MonoFat", "MonoFat", nullptr, "MonoFat", "g", "Monounsaturated Fat (g)", "Monounsaturated Fat (g)", "Monounsaturated Fat", "g", "txtMonoFat", "lblMonoFat", false},
    {Nutrient::PolyFat, "PolyFat", "PolyFat", nullptr, "PolyFat", "g", "Polyunsaturated Fat (g)", "Polyunsaturated Fat (g)", "Polyunsaturated Fat", "g", "txtPolyFat", "lblPolyFat", false},
    {Nutrient::SatFat, "SatFat", "SatFat", nullptr, "SatFat", "g", "Saturated Fat (g)", "Saturated Fat (g)", "Saturated Fat", "g", "txtSatFat", "lblSatFat", false},
    {Nutrient::TotalFat, "TotalFat", "TotalFat", nullptr, "TotalFat", "g", "Total Fat (g)", "Total Fat (g)", "Total Fat", "g", "txtTotalFat", "lblTotalFat", false},
    {Nutrient::Calories, "Calories", "Calories", nullptr, "Calories", "kcal", "Calories", "Calories", "Calories", "kcal", "txtCals", "lblCalories", true},
};
// clang-format on
static_assert(std::size(Table) == NutrientCount, "one row for each nutrient");

constexpr bool StandsInOrder() {
    for (size_t i = 0; i < std::size(Table); ++i)
        if (Table[i].id != static_cast<Nutrient>(i))
            return false;
    return true;
}
static_assert(StandsInOrder(), "a row stands at the place of its nutrient");

using enum Nutrient;

constexpr Nutrient Canonical[] = {
    Ash,       Calcium,    Cholesterol, Copper,     Fiber,      Folate,   Iron,     Magnesium,
    Manganese, Niacin,     Panto,       Phosphorus, Riboflavin, Selenium, Sodium,   Thiamin,
    VitaminA,  VitaminB12, VitaminB6,   VitaminC,   VitaminE,   Zinc,     Water,    Protein,
    Carbs,     TotalFat,   SatFat,      PolyFat,    MonoFat,    Calories, Potassium};
static_assert(HoldEachNutrientOnce({Canonical}));

constexpr Nutrient Profile[] = {
    Ash,        Calcium,   Cholesterol, Copper,    Folate,     Iron,     Magnesium, Manganese,
    Niacin,     Panto,     Phosphorus,  Potassium, Riboflavin, Selenium, Thiamin,   VitaminA,
    VitaminB12, VitaminB6, VitaminC,    VitaminE,  Zinc,       Water,    Sodium,    Fiber,
    Protein,    Carbs,     TotalFat,    SatFat,    PolyFat,    MonoFat,  Calories};
static_assert(HoldEachNutrientOnce({Profile}));

constexpr Nutrient Reference[] = {Ash,        Calcium,    Cholesterol, Copper,   Folate,
                                  Iron,       Magnesium,  Manganese,   Niacin,   Panto,
                                  Phosphorus, Riboflavin, Selenium,    Thiamin,  VitaminA,
                                  VitaminB12, VitaminB6,  VitaminC,    VitaminE, Zinc};

constexpr bool HasReference(Nutrient id) {
    return Table[static_cast<size_t>(id)].rdiColumn;
}
static_assert(std::ranges::all_of(Reference, HasReference));
static_assert(std::ranges::count_if(Table, HasReference, &NutrientInfo::id) ==
              std::ssize(Reference));

constexpr Nutrient Chart[] = {Calories,   TotalFat,   SatFat,    PolyFat,   MonoFat,  Cholesterol,
                              Sodium,     Carbs,      Fiber,     Protein,   Calcium,  Copper,
                              Folate,     Iron,       Magnesium, Manganese, Niacin,   Phosphorus,
                              Potassium,  Riboflavin, Thiamin,   Selenium,  VitaminA, VitaminB6,
                              VitaminB12, VitaminC,   VitaminE,  Zinc};
constexpr Nutrient NotInChart[] = {Ash, Panto, Water};
static_assert(HoldEachNutrientOnce({Chart, NotInChart}));

constexpr Nutrient Period[] = {
    Calories,  TotalFat,  SatFat,     PolyFat,    MonoFat,   Cholesterol, Sodium,  Carbs,
    Fiber,     Protein,   Ash,        Calcium,    Copper,    Folate,      Iron,    Magnesium,
    Manganese, Niacin,    Panto,      Phosphorus, Potassium, Riboflavin,  Thiamin, Selenium,
    VitaminA,  VitaminB6, VitaminB12, VitaminC,   VitaminE,  Water,       Zinc};
static_assert(HoldEachNutrientOnce({Period}));

/// The irregular blanks are part of the statement.
constexpr auto SumTemplate =
    "SELECT Sum(%1.VitaminC) AS [VitaminC],Sum(%1.VitaminE) AS [VitaminE],Sum(%1.VitaminB12) AS "
    "[VitaminB12],"
    " Sum(%1.VitaminB6) AS [VitaminB6],Sum(%1.VitaminA) AS [VitaminA],Sum(%1.SatFat) AS "
    "[SatFat],Sum(%1.Potassium) AS [Potassium],Sum(%1.PolyFat) AS [PolyFat],Sum(%1.MonoFat) AS "
    "[MonoFat],"
    " Sum(%1.Folate) AS [Folate],Sum(%1.Water) AS [Water],"
    " Sum(%1.Calories) AS [Calories],Sum(%1.Protein) AS [Protein],"
    " Sum(%1.TotalFat) AS [TotalFat],Sum(%1.carbs) AS [carbs],"
    " Sum(%1.fiber) AS [fiber],Sum(%1.Ash) AS [Ash],"
    " Sum(%1.Calcium) AS [Calcium],Sum(%1.Phosphorus) AS [Phosphorus],"
    " Sum(%1.Iron) AS [Iron],Sum(%1.Sodium) AS [Sodium],"
    " Sum(%1.Magnesium) AS [Magnesium],Sum(%1.Panto) AS [Panto],"
    " Sum(%1.Zinc) AS [Zinc],Sum(%1.Copper) AS [Copper],"
    " Sum(%1.Manganese) AS [Manganese],Sum(%1.Selenium) AS [Selenium],"
    " Sum(%1.Thiamin) AS [Thiamin],Sum(%1.Riboflavin) AS [Riboflavin],"
    " Sum(%1.Niacin) AS [Niacin],Sum(%1.Cholesterol) AS [Cholesterol]";

constexpr Nutrient Stored[] = {
    VitaminC, VitaminE,  VitaminB12, VitaminB6, VitaminA,   SatFat,    Potassium,  PolyFat,
    MonoFat,  Folate,    Water,      Calories,  Protein,    TotalFat,  Carbs,      Fiber,
    Ash,      Calcium,   Phosphorus, Iron,      Sodium,     Magnesium, Panto,      Zinc,
    Copper,   Manganese, Selenium,   Thiamin,   Riboflavin, Niacin,    Cholesterol};
static_assert(HoldEachNutrientOnce({Stored}));
static_assert(std::size(Stored) == Schema::StoredAmounts, "the tables lack a column");

/// Whether the aliases of the sums are the columns of the log in the order of `Stored`.
constexpr bool SumsStandInOrder() {
    constexpr std::string_view opening = "AS [";
    std::string_view rest = SumTemplate;
    for (const Nutrient id : Stored) {
        const size_t alias = rest.find(opening);
        if (alias == rest.npos)
            return false;
        rest.remove_prefix(alias + opening.size());
        const size_t length = rest.find(']');
        if (rest.substr(0, length) != Table[static_cast<size_t>(id)].logColumn)
            return false;
        rest.remove_prefix(length);
    }
    return rest.find(opening) == rest.npos;
}
static_assert(SumsStandInOrder(), "a recipe hands its sums on by position");
} // namespace

const NutrientInfo& Info(Nutrient id) {
    return Table[static_cast<size_t>(id)];
}

std::span<const NutrientInfo, NutrientCount> Nutrients() {
    return Table;
}

NutrientOrder CanonicalOrder() {
    return Canonical;
}
NutrientOrder ProfileOrder() {
    return Profile;
}
NutrientOrder ReferenceOrder() {
    return Reference;
}
NutrientOrder ChartOrder() {
    return Chart;
}

NutrientOrder PeriodOrder() {
    return Period;
}

NutrientOrder StoredOrder() {
    return Stored;
}

QString NutrientSumSQL(const QString& table) {
    return QString::fromLatin1(SumTemplate).arg(table);
}
