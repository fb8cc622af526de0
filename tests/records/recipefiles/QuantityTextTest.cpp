#include "records/recipefiles/QuantityText.h"
#include "records/recipefiles/DurationText.h"
#include "records/recipefiles/IngredientText.h"

#include <gtest/gtest.h>

TEST(QuantityTextTest, ReadsFractionsDecimalsAndRanges) {
    struct Case {
        const char16_t* text;
        double value;
        const char16_t* rest;
    };
    constexpr Case cases[] = {
        {u"1 1/2 cups", 1.5, u"cups"},
        {u"1/4", .25, u""},
        {u"\u00BD cup", .5, u"cup"},
        {u"1\u00BD cup", 1.5, u"cup"},
        {u"1 \u00BD cup", 1.5, u"cup"},
        {u".5 l", .5, u"l"},
        {u"1,5 dl", 1.5, u"dl"},
        {u"2-3 eggs", 2.5, u"eggs"},
        {u"2 \u2013 3", 2.5, u""},
        {u"2 to 4 cloves", 3, u"cloves"},
        {u"1/2 - 1 cup", .75, u"cup"},
        {u"10g", 10, u"g"},
        {u"3-inch piece", 3, u"-inch piece"},
        {u"5 to taste", 5, u"to taste"},
        {u"1/0", 0, u""},
    };
    for (const Case& one : cases) {
        const QuantityText::Amount read = QuantityText::Leading(QString::fromUtf16(one.text));
        EXPECT_EQ(read.value, one.value) << QString::fromUtf16(one.text).toStdString();
        EXPECT_EQ(read.rest, QString::fromUtf16(one.rest));
    }
    EXPECT_FALSE(QuantityText::Leading("salt").value);
    EXPECT_FALSE(QuantityText::Leading("").value);
}

TEST(DurationTextTest, ReadsIsoFormsAndWords) {
    struct Case {
        const char* text;
        double minutes; ///< 0: none
    };
    constexpr Case cases[] = {
        {"PT30M", 30},       {"PT1H30M", 90},   {"P0DT0H35M", 35}, {"P1DT1H1M1.53S", 1501},
        {"PT", 0},           {"PT-3H", 0},      {"", 0},           {"30 minutes", 30},
        {"1 hr 10 min", 70}, {"1.5 hours", 90}, {"45", 45},        {"soon", 0},
        {"PT00H20M", 20},
    };
    for (const Case& one : cases)
        EXPECT_EQ(MinutesOf(QString::fromLatin1(one.text)).value_or(0), one.minutes) << one.text;
}

TEST(DurationTextTest, AWordForInfinityIsNoTime) {
    for (const char* text : {"inf", "-inf", "nan", "1e400"})
        EXPECT_FALSE(MinutesOf(QString::fromLatin1(text))) << text;
}

TEST(IngredientTextTest, TakesALineApart) {
    const IngredientText line = IngredientText::Of("1 1/2 cups brown lentils, rinsed well (dry)");
    EXPECT_EQ(line.quantity, 1.5);
    ASSERT_NE(line.unit, nullptr);
    EXPECT_EQ(line.unit->sort, KitchenUnit::Sort::Volume);
    EXPECT_EQ(line.words, QStringList({"brown", "lentils"}));
    EXPECT_EQ(line.details, QStringList({"well", "dry"}));
}

TEST(IngredientTextTest, UnitsHaveManyNames) {
    const auto unit = [](const char* line) {
        return IngredientText::Of(QString::fromLatin1(line)).unit;
    };
    EXPECT_EQ(unit("2 Tbsp. oil"), unit("2 tablespoons oil"));
    EXPECT_EQ(unit("2 T oil"), unit("2 tb oil"));
    EXPECT_EQ(unit("2 t oil"), unit("2 ts oil"));
    EXPECT_EQ(unit("8 fl. oz milk"), unit("8 fluid ounces milk"));
    EXPECT_NE(unit("8 oz milk"), unit("8 fl oz milk"));
    EXPECT_EQ(unit("3 eggs"), nullptr);
    EXPECT_EQ(unit("grams"), nullptr);
}

TEST(IngredientTextTest, ASizeInBracketsCountsForEachCan) {
    const IngredientText line = IngredientText::Of("2 (15 oz) cans of beans");
    EXPECT_EQ(line.quantity, 30);
    ASSERT_NE(line.unit, nullptr);
    EXPECT_EQ(line.unit->sort, KitchenUnit::Sort::Mass);
    EXPECT_EQ(line.words, QStringList({"beans"}));
}
