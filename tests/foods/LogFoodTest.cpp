#include "foods/FoodsTest.h"

#include "foods/ui/ucFood.h"
#include "foods/ui/ucSearchResults.h"
#include "store/Connection.h"
#include "toolkit/MousePointer.h"
#include "toolkit/ucRadio.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

class LogFoodTest : public FoodsTest {
protected:
    void SetUp() override {
        FoodsTest::SetUp();
        panel_.resize(612, 440);
        panel_.show();
        AddFood({.id = 7,
                 .name = "Bread",
                 .gramsA = 30.0,
                 .gramsB = QVariant(),
                 .nutrients = {{"Calories", 250}}});
        Search(panel_, "bread");
    }
    void TearDown() override {
        MousePointer::SetNormal();
        ExpectNothingWritten();
        FoodsTest::TearDown();
    }

    ucFood* Row() { return Rows(panel_).value(0); }
    void Press(const char* button, const QString& quantity) {
        const char* field = QString(button).endsWith(u'B') ? "txtQTY_B" : "txtQTY_A";
        Find<QLineEdit>(Row(), field)->setText(quantity);
        Click(Find(Row(), button));
    }
    static const QString tooMuch;
    static const QString notValid;

    ucSearchResults panel_;
    QSignalSpy chosen_{&panel_, &ucSearchResults::FoodChosen};
    QSignalSpy examined_{&panel_, &ucSearchResults::FoodExamined};
    ScaledFood Chosen(int index) { return chosen_[index][1].value<ScaledFood>(); }
    ScaledFood Examined(int index) { return examined_[index][0].value<ScaledFood>(); }
};

const QString LogFoodTest::tooMuch = "Please enter a quantity (QTY) between .1 and 99";
const QString LogFoodTest::notValid = "Please enter a valid quantity (between .1 and 99)";

TEST_F(LogFoodTest, TheAddButtonRaisesTheScaledFoodAndItsMeal) {
    Press("cmdEAT_a", "2");
    ASSERT_EQ(chosen_.size(), 1);
    EXPECT_EQ(chosen_[0][0].toString(), "Breakfast");
    EXPECT_EQ(Chosen(0).Amount("Calories"), 150);
    EXPECT_EQ(Chosen(0).Text("SERVING"), "1 cup");
    EXPECT_EQ(Chosen(0).Amount("QTY"), 2);
    EXPECT_FALSE(MousePointer::IsBusy());
}

TEST_F(LogFoodTest, ThePointerIsNormalBeforeFoodChosenIsEmitted) {
    bool busy = true;
    QObject::connect(&panel_, &ucSearchResults::FoodChosen, &panel_,
                     [&] { busy = MousePointer::IsBusy(); });
    Press("cmdEAT_a", "1");
    EXPECT_FALSE(busy);
}

TEST_F(LogFoodTest, EachTickedMealHasItsText) {
    const char* meals[] = {"Breakfast", "Lunch", "Dinner", "Snacks"};
    for (int i = 0; i < 4; ++i) {
        panel_.SetMeal(i);
        Press("cmdEAT_a", "1");
        EXPECT_EQ(chosen_.takeLast()[0].toString(), meals[i]);
    }
}

TEST_F(LogFoodTest, NoMealTickedGivesAnEmptyText) {
    Find<ucRadio>(&panel_, "opMeal0")->SetValue(false);
    Press("cmdEAT_a", "1");
    EXPECT_EQ(chosen_[0][0].toString(), "");
}

TEST_F(LogFoodTest, TheFirstTickedMealWins) {
    Find<ucRadio>(&panel_, "opMeal3")->SetValue(true);
    Find<ucRadio>(&panel_, "opMeal2")->SetValue(true);
    Find<ucRadio>(&panel_, "opMeal0")->SetValue(false);
    Press("cmdEAT_a", "1");
    EXPECT_EQ(chosen_[0][0].toString(), "Dinner");
}

TEST_F(LogFoodTest, ASecondServingWithoutAWeightCountsAHundredGrams) {
    Press("cmdEAT_B", "1");
    EXPECT_EQ(Chosen(0).Amount("Calories"), 250);
    EXPECT_EQ(Chosen(0).Text("SERVING"), "1 oz");
}

TEST_F(LogFoodTest, AcceptedQuantities) {
    for (const char* quantity : {".05", "99", "-1", "0.0000001", " 3 ", "1e1"}) {
        Press("cmdEAT_a", quantity);
        EXPECT_EQ(chosen_.size(), 1) << quantity;
        chosen_.clear();
    }
}

TEST_F(LogFoodTest, ANegativeQuantityLogsNegativeAmounts) {
    Press("cmdEAT_a", "-1");
    EXPECT_EQ(Chosen(0).Amount("Calories"), -75);
}

TEST_F(LogFoodTest, RefusedQuantities) {
    for (const char* quantity : {"", "abc", "0", "0.0", "99.01", "1e400", "1,5", "100", "1e300",
                                 "'; DROP TABLE USER_FOODS; --", "🥛", "NaN"}) {
        ExpectAlert(tooMuch);
        Press("cmdEAT_a", quantity);
        EXPECT_TRUE(chosen_.isEmpty()) << quantity;
    }
}

TEST_F(LogFoodTest, ARefusedQuantityLeavesThePointerBusyUntilTheNextRoutineSetsIt) {
    ExpectAlert(tooMuch);
    Press("cmdEAT_a", "0");
    EXPECT_TRUE(MousePointer::IsBusy());
    Press("cmdEAT_a", "1");
    EXPECT_FALSE(MousePointer::IsBusy());
}

TEST_F(LogFoodTest, TheRowKeepsItsQuantityAndStaysAsItWas) {
    Press("cmdEAT_a", "2.5");
    Press("cmdEAT_a", "2.5");
    EXPECT_EQ(chosen_.size(), 2);
    EXPECT_EQ(Find<QLineEdit>(Row(), "txtQTY_A")->text(), "2.5");
}

TEST_F(LogFoodTest, ExaminingRefusesOnlyZeroWithItsOwnMessage) {
    for (const char* quantity : {"", "abc", "0", "1e400", "1,5"}) {
        ExpectAlert(notValid);
        Press("imgInfo_W_A", quantity);
        EXPECT_TRUE(examined_.isEmpty()) << quantity;
        EXPECT_FALSE(MousePointer::IsBusy());
    }
    for (const char* quantity : {"99.01", "100", "-1", ".05"}) {
        Press("imgInfo_W_A", quantity);
        EXPECT_EQ(examined_.size(), 1) << quantity;
        examined_.clear();
    }
}

TEST_F(LogFoodTest, ExaminingGivesTheSameItemAsAdding) {
    Press("cmdEAT_a", "2");
    Press("imgInfo_W_A", "2");
    ASSERT_EQ(examined_.size(), 1);
    const auto added = Chosen(0).Entries();
    const auto shown = Examined(0).Entries();
    ASSERT_EQ(added.size(), shown.size());
    for (int i = 0; i < added.size(); ++i) {
        EXPECT_EQ(added[i].key, shown[i].key);
        EXPECT_EQ(added[i].value, shown[i].value);
    }
}

TEST_F(LogFoodTest, AFoodDeletedMeanwhileFailsWithoutLeavingThePointerBusy) {
    FoodDB().Raw().exec("DELETE FROM FOODS");
    EXPECT_EQ(FailureOf([&] { Row()->EatFood(7, "A", 1, false); }), 3021);
    EXPECT_FALSE(MousePointer::IsBusy());
    EXPECT_TRUE(chosen_.isEmpty());
}

TEST_F(LogFoodTest, ARecipeRowGivesTheWholeRecipe) {
    const qint32 soup = AddRecipe("Bread soup", "1 bowl");
    AddIngredient(soup, {{"Calories", 312}});
    Search(panel_, "soup");
    Press("cmdEAT_a", "1");
    EXPECT_EQ(Chosen(0).Amount("Calories"), 312);
    EXPECT_EQ(Chosen(0).Text("SERVING"), "1 bowl");
    UserDB().Raw().exec("DELETE FROM Ingredients");
    Press("imgInfo_W_A", "1");
    EXPECT_EQ(Examined(0).Amount("Calories"), 0);
}

TEST_F(LogFoodTest, EnterInTheQuantityAddsThatServing) {
    auto* field = Find<QLineEdit>(Row(), "txtQTY_A");
    field->selectAll();
    QTest::keyClicks(field, "3");
    QTest::keyClick(field, Qt::Key_Return);
    ASSERT_EQ(chosen_.size(), 1);
    EXPECT_EQ(Chosen(0).Amount("QTY"), 3);
}
