#include "model/Nuts.h"
#include "runtime/RuntimeError.h"
#include "support/Failure.h"

#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

namespace {
QStringList Names(std::span<const Nutrient> order) {
    QStringList names;
    for (Nutrient id : order)
        names << QString::fromLatin1(Info(id).property);
    return names;
}

/// The distinct values of `name`, in lower case, without nulls.
QSet<QString> Distinct(const char* NutrientInfo::*name) {
    QSet<QString> names;
    for (const NutrientInfo& info : Nutrients())
        if (info.*name)
            names << QString::fromLatin1(info.*name).toLower();
    return names;
}

/// The names and captions of each nutrient, in the order of the table.
struct Shown {
    const char *property, *unit, *factsCaption, *editCaption, *textField, *factsLabel;
};
// clang-format off
constexpr Shown Expected[] = {
    {"Selenium", "mg", "Selenium (mg)", "Selenium (mg)", "txtSelenium", "lblSelenium"},
    {"Zinc", "mg", "Zinc (mg)", "Zinc (mg)", "txtZinc", "lblZinc"},
    {"Water", "g", "Water (g)", "Water (g)", "txtWater", "lblWater"},
    {"VitaminC", "mg", "Vit. C (mg)", "Vit. C (mg)", "txtVitC", "lblVitaminC"},
    {"VitaminB12", "mcg", "Vit. B12 (mcg)", "Vit. B12 (mcg)", "txtVitB12", "lblVitaminB12"},
    {"VitaminB6", "mg", "Vit. B6 (mg)", "Vit. B6 (mg)", "txtVitB6", "lblVitaminB6"},
    {"VitaminE", "mg", "Vit. E (mg)", "Vit. E (mg)", "txtVitE", "lblVitaminE"},
    {"VitaminA", "iu", "Via. A (iu)", "Via. A (iu)", "txtVitA", "lblVitaminA"},
    {"Thiamin", "mg", "Thiamin (mg)", "Thiamin (mg)", "txtThiamin", "lblThiamin"},
    {"Riboflavin", "mg", "Riboflavin (mg)", "Riboflavin (mg)", "txtRiboflavin", "lblRiboflavin"},
    {"Potassium", "mg", "Potassium (mg)", "Potassium (mg)", "txtPotassium", "lblPotassium"},
    {"Phosphorus", "mg", "Phosphorus (mg)", "Phosphorus (mg)", "txtPhosphorus", "lblPhosphorus"},
    {"Panto", "mg", "Panto. Adic (mg)", "Panto. Adic (mg)", "txtPantoAcid", "lblPantoAcid"},
    {"Niacin", "mg", "Niacin (mg)", "Niacin (mg)", "txtNiacin", "lblNiacin"},
    {"Manganese", "mg", "Manganese (mg)", "Manganese (mg)", "txtManganese", "lblManganese"},
    {"Magnesium", "mg", "Magnesium (mg)", "Magnesium (mg)", "txtMagnesium", "lblMagnesium"},
    {"Iron", "mg", "Iron (mg)", "Iron (mg)", "txtIron", "lblIron"},
    {"Folate", "mcg", "Folate (mcg)", "Folate (mcg)", "txtFolate", "lblFolate"},
    {"Copper", "mg", "Copper (mg)", "Copper (mg)", "txtCopper", "lblCopper"},
    {"Calcium", "mg", "Calcium (mg)", "Calcium (mg)", "txtCalcium", "lblCalcium"},
    {"Ash", "g", "Ash (g)", "Ash (g)", "txtAsh", "lblAsh"},
    {"Protein", "g", "Protein (g)", "Protein (g)", "txtProtein", "lblProtein"},
    {"Fiber", "g", "Dietary Fiber (g)", "Fiber (g)", "txtFiber", "lblFiber"},
    {"Carbs", "g", "Total Carbohydrates (g)", "Carbohydrates (g)", "txtCarbs", "lblCarbs"},
    {"Sodium", "mg", "Sodium (mg)", "Sodium (mg)", "txtSodium", "lblSodium"},
    {"Cholesterol", "mg", "Cholesterol (mg)", "Cholesterol (mg)", "txtCholesterol", "lblCholesterol"},
    {"MonoFat", "g", "Monounsaturated Fat (g)", "Monounsaturated Fat (g)", "txtMonoFat", "lblMonoFat"},
    {"PolyFat", "g", "Polyunsaturated Fat (g)", "Polyunsaturated Fat (g)", "txtPolyFat", "lblPolyFat"},
    {"SatFat", "g", "Saturated Fat (g)", "Saturated Fat (g)", "txtSatFat", "lblSatFat"},
    {"TotalFat", "g", "Total Fat (g)", "Total Fat (g)", "txtTotalFat", "lblTotalFat"},
    {"Calories", "kcal", "Calories", "Calories", "txtCals", "lblCalories"},
};
// clang-format on
} // namespace

TEST(Nutrients, AreThirtyOneWithDistinctNames) {
    EXPECT_EQ(Nutrients().size(), 31U);
    for (auto name :
         {&NutrientInfo::property, &NutrientInfo::profileColumn, &NutrientInfo::logColumn,
          &NutrientInfo::factsCaption, &NutrientInfo::editCaption, &NutrientInfo::textField,
          &NutrientInfo::factsLabel})
        EXPECT_EQ(Distinct(name).size(), 31);
}

TEST(Nutrients, StandAtTheirPlaceInTheTable) {
    for (const NutrientInfo& info : Nutrients())
        EXPECT_EQ(&Info(info.id), &info);
}

TEST(Nutrients, HaveTheirNamesAndCaptions) {
    ASSERT_EQ(std::size(Expected), Nutrients().size());
    for (size_t i = 0; i < std::size(Expected); ++i) {
        const NutrientInfo& info = Nutrients()[i];
        EXPECT_STREQ(info.property, Expected[i].property);
        EXPECT_STREQ(info.unit, Expected[i].unit) << info.property;
        EXPECT_STREQ(info.factsCaption, Expected[i].factsCaption);
        EXPECT_STREQ(info.editCaption, Expected[i].editCaption);
        EXPECT_STREQ(info.textField, Expected[i].textField);
        EXPECT_STREQ(info.factsLabel, Expected[i].factsLabel);
    }
}

TEST(Nutrients, EightAreWholeNumbers) {
    QStringList whole;
    for (const NutrientInfo& info : Nutrients())
        if (info.whole)
            whole << QString::fromLatin1(info.property);
    whole.sort();
    EXPECT_EQ(whole, QStringList({"Calcium", "Calories", "Cholesterol", "Folate", "Magnesium",
                                  "Phosphorus", "Potassium", "Sodium"}));
}

TEST(Nutrients, ElevenAreNeverReadFromTheReferenceTable) {
    QSet<QString> without;
    for (const NutrientInfo& info : Nutrients())
        if (!info.rdiColumn)
            without << QString::fromLatin1(info.property);
    EXPECT_EQ(without, QSet<QString>({"Water", "Potassium", "Sodium", "Fiber", "Protein", "Carbs",
                                      "MonoFat", "PolyFat", "SatFat", "TotalFat", "Calories"}));
    EXPECT_EQ(Names(ReferenceOrder()),
              QStringList({"Ash",        "Calcium",    "Cholesterol", "Copper",   "Folate",
                           "Iron",       "Magnesium",  "Manganese",   "Niacin",   "Panto",
                           "Phosphorus", "Riboflavin", "Selenium",    "Thiamin",  "VitaminA",
                           "VitaminB12", "VitaminB6",  "VitaminC",    "VitaminE", "Zinc"}));
    for (Nutrient id : ReferenceOrder())
        EXPECT_NE(Info(id).rdiColumn, nullptr);
}

TEST(Nutrients, StandInTheCanonicalOrder) {
    EXPECT_EQ(
        Names(CanonicalOrder()),
        QStringList({"Ash",        "Calcium",   "Cholesterol", "Copper",  "Fiber",    "Folate",
                     "Iron",       "Magnesium", "Manganese",   "Niacin",  "Panto",    "Phosphorus",
                     "Riboflavin", "Selenium",  "Sodium",      "Thiamin", "VitaminA", "VitaminB12",
                     "VitaminB6",  "VitaminC",  "VitaminE",    "Zinc",    "Water",    "Protein",
                     "Carbs",      "TotalFat",  "SatFat",      "PolyFat", "MonoFat",  "Calories",
                     "Potassium"}));
}

TEST(Nutrients, StandInTheOrderOfAProfileRow) {
    QStringList columns;
    for (Nutrient id : ProfileOrder())
        columns << QString::fromLatin1(Info(id).profileColumn);
    EXPECT_EQ(columns,
              QStringList({"ASH",        "Calcium",    "Cholesterol", "Copper",   "Folate",
                           "Iron",       "Magnesium",  "Manganese",   "Niacin",   "Panto",
                           "Phosphorus", "Potassium",  "Riboflavin",  "Selenium", "Thiamin",
                           "VitaminA",   "VitaminB12", "VitaminB6",   "VitaminC", "VitaminE",
                           "Zinc",       "water",      "sodium",      "fiber",    "protein",
                           "carbs",      "TotalFat",   "SatFat",      "PolyFat",  "MonoFat",
                           "Calories"}));
}

TEST(Nutrients, TheDailyPanelLeavesThreeOut) {
    const QStringList names = Names(ChartOrder());
    EXPECT_EQ(names.size(), 28);
    EXPECT_EQ(names.first(), QStringLiteral("Calories"));
    EXPECT_EQ(names.last(), QStringLiteral("Zinc"));
    for (const char* left : {"Ash", "Panto", "Water"})
        EXPECT_FALSE(names.contains(QString::fromLatin1(left)));
}

TEST(Nutrients, TheBarsOfAPeriodHaveAllInTheOrderOfTheDailyPanel) {
    QStringList names = Names(PeriodOrder());
    EXPECT_EQ(names.size(), 31);
    EXPECT_EQ(names.indexOf(QStringLiteral("Ash")), 10);
    EXPECT_EQ(names.indexOf(QStringLiteral("Panto")), 18);
    EXPECT_EQ(names.indexOf(QStringLiteral("Water")), 29);
    for (const char* own : {"Ash", "Panto", "Water"})
        names.removeOne(QString::fromLatin1(own));
    EXPECT_EQ(names, Names(ChartOrder()));
}

TEST(Nutrients, OnlyWaterHasAnotherUnitOnTheBarsOfAPeriod) {
    for (const NutrientInfo& info : Nutrients())
        EXPECT_STREQ(info.periodUnit, info.id == Nutrient::Water ? "gm" : info.unit);
}

TEST(Nutrients, ColumnsOfTheLogKeepTheirForm) {
    EXPECT_STREQ(Info(Nutrient::Carbs).logColumn, "carbs");
    EXPECT_STREQ(Info(Nutrient::Fiber).logColumn, "fiber");
    EXPECT_STREQ(Info(Nutrient::Ash).logColumn, "Ash");
    EXPECT_STREQ(Info(Nutrient::Sodium).logColumn, "Sodium");
    EXPECT_STREQ(Info(Nutrient::Water).logColumn, "Water");
}

TEST(Nutrients, ColumnsDifferFromTheirNameOnlyInCase) {
    for (const NutrientInfo& info : Nutrients())
        for (const char* column : {info.profileColumn, info.logColumn})
            EXPECT_EQ(QString(column).toLower(), QString(info.property).toLower());
}

TEST(Nutrients, SumStatementKeepsItsIrregularBlanks) {
    const QString text = NutrientSumSQL(QStringLiteral("USER_FOODS"));
    EXPECT_EQ(
        text.toStdString(),
        "SELECT Sum(USER_FOODS.VitaminC) AS [VitaminC],Sum(USER_FOODS.VitaminE) AS [VitaminE],"
        "Sum(USER_FOODS.VitaminB12) AS [VitaminB12], Sum(USER_FOODS.VitaminB6) AS [VitaminB6],"
        "Sum(USER_FOODS.VitaminA) AS [VitaminA],Sum(USER_FOODS.SatFat) AS [SatFat],"
        "Sum(USER_FOODS.Potassium) AS [Potassium],Sum(USER_FOODS.PolyFat) AS [PolyFat],"
        "Sum(USER_FOODS.MonoFat) AS [MonoFat], Sum(USER_FOODS.Folate) AS [Folate],"
        "Sum(USER_FOODS.Water) AS [Water], Sum(USER_FOODS.Calories) AS [Calories],"
        "Sum(USER_FOODS.Protein) AS [Protein], Sum(USER_FOODS.TotalFat) AS [TotalFat],"
        "Sum(USER_FOODS.carbs) AS [carbs], Sum(USER_FOODS.fiber) AS [fiber],"
        "Sum(USER_FOODS.Ash) AS [Ash], Sum(USER_FOODS.Calcium) AS [Calcium],"
        "Sum(USER_FOODS.Phosphorus) AS [Phosphorus], Sum(USER_FOODS.Iron) AS [Iron],"
        "Sum(USER_FOODS.Sodium) AS [Sodium], Sum(USER_FOODS.Magnesium) AS [Magnesium],"
        "Sum(USER_FOODS.Panto) AS [Panto], Sum(USER_FOODS.Zinc) AS [Zinc],"
        "Sum(USER_FOODS.Copper) AS [Copper], Sum(USER_FOODS.Manganese) AS [Manganese],"
        "Sum(USER_FOODS.Selenium) AS [Selenium], Sum(USER_FOODS.Thiamin) AS [Thiamin],"
        "Sum(USER_FOODS.Riboflavin) AS [Riboflavin], Sum(USER_FOODS.Niacin) AS [Niacin],"
        "Sum(USER_FOODS.Cholesterol) AS [Cholesterol]");
}

TEST(Nutrients, SumStatementNamesTheTableThroughout) {
    const QString text = NutrientSumSQL(QStringLiteral("Ingredients"));
    EXPECT_EQ(text.count(QStringLiteral("Sum(Ingredients.")), 31);
    EXPECT_EQ(QString(text).replace("Ingredients", "USER_FOODS"),
              NutrientSumSQL(QStringLiteral("USER_FOODS")));
}

TEST(Nuts, StartAtZero) {
    const Nuts nuts;
    for (const NutrientInfo& info : Nutrients())
        EXPECT_EQ(nuts[info.id], 0) << info.property;
}

TEST(Nuts, WholeNumberMembersRoundHalvesToTheEvenNeighbour) {
    Nuts nuts;
    nuts.Set(Nutrient::Calories, 2.5);
    EXPECT_EQ(nuts.Calories(), 2);
    nuts.Set(Nutrient::Calories, 3.5);
    EXPECT_EQ(nuts.Calories(), 4);
    nuts.Set(Nutrient::Sodium, 0.4);
    EXPECT_EQ(nuts[Nutrient::Sodium], 0);
}

TEST(Nuts, OtherMembersKeepTheirFraction) {
    Nuts nuts;
    nuts.Set(Nutrient::Protein, 2.5);
    nuts.Set(Nutrient::Carbs, 0.125);
    nuts.Set(Nutrient::TotalFat, -1.5);
    EXPECT_EQ(nuts.Protein(), 2.5);
    EXPECT_EQ(nuts.Carbs(), 0.125);
    EXPECT_EQ(nuts.TotalFat(), -1.5);
}

TEST(Nuts, AMemberBeyondTheBoundsOfAWholeNumberIsTheBound) {
    Nuts nuts;
    for (const Nutrient id : {Nutrient::Calcium, Nutrient::Protein}) {
        for (const double value : {3e9, 1e300, HUGE_VAL}) {
            nuts.Set(id, value);
            EXPECT_EQ(nuts[id], 2147483647) << value;
            nuts.Set(id, -value);
            EXPECT_EQ(nuts[id], -2147483648.0) << value;
        }
    }
}

TEST(Nuts, AreCopiedByValue) {
    Nuts first;
    first.Set(Nutrient::Iron, 8);
    const Nuts second = first;
    first.Set(Nutrient::Iron, 9);
    EXPECT_EQ(second[Nutrient::Iron], 8);
}
