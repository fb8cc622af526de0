#include "IntakeTest.h"

#include "foods/ui/frmFoodList.h"
#include "foods/ui/frmFoodSearch.h"
#include "foods/ui/frmNutInfo.h"
#include "foods/ui/ucFood.h"
#include "foods/ui/ucSearchResults.h"
#include "intake/ui/frmDay.h"
#include "model/Nutrients.h"
#include "store/Connection.h"
#include "support/Failure.h"
#include "toolkit/ListBox.h"
#include "toolkit/ucButton.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

#include <memory>

/// A custom food is made on its screen, then found, examined and eaten on the day screen.
class CustomFoodTest : public IntakeTest {
protected:
    void SetUp() override {
        IntakeTest::SetUp();
        FoodDB().Raw().exec("INSERT INTO FOODS (ID, FoodName) VALUES (23508, 'Granola, stock')");
        foods = std::make_unique<frmFoodList>();
        today = std::make_unique<frmDay>();
        for (ScreenForm* screen :
             {static_cast<ScreenForm*>(foods.get()), static_cast<ScreenForm*>(today.get())}) {
            screen->resize(766, 562);
            screen->BeforeShow();
            screen->show();
            screen->DoWinInit();
        }
    }
    void TearDown() override {
        foods.reset();
        today.reset();
        IntakeTest::TearDown();
    }

    void Make(const QString& name, const QString& amount) {
        Click(Find(foods.get(), "cmdNewBut"));
        for (QLineEdit* field : foods->findChildren<QLineEdit*>())
            field->setText(amount);
        Find<QLineEdit>(foods.get(), "txtFoodName")->setText(name);
        Find<QLineEdit>(foods.get(), "txtServing")->setText("1 bowl");
        Click(Find(foods.get(), "cmdSave"));
    }
    void Delete() {
        ExpectAlert("Are you sure you want to delete this custom food?");
        Click(Find(foods.get(), "cmdDelete"));
    }
    void InSearch(const QString& term, const std::function<void(QWidget*)>& visit) {
        WithModal(
            [&](QWidget* search) {
                Find<QCheckBox>(search, "ckStock")->setChecked(false);
                Find<QLineEdit>(search, "txtSearchString")->setText(term);
                Click(Find(search, "cmdGo"));
                visit(search);
            },
            [this] { Click(Find(today.get(), "lblSnack")); });
    }
    static ucFood* Row(QWidget* search) { return Find<ucFood>(search, "ucFood1"); }
    void Eat(const QString& term, const QString& quantity) {
        InSearch(term, [&](QWidget* search) {
            Find<QLineEdit>(Row(search), "txtQTY_A")->setText(quantity);
            Click(Find(Row(search), "cmdEAT_a"));
        });
    }

    std::unique_ptr<frmFoodList> foods;
    std::unique_ptr<frmDay> today;
};

TEST_F(CustomFoodTest, ASavedFoodIsFoundByItsSourceWithOneServing) {
    Make("Tom's granola", "5");
    InSearch("granola tom", [](QWidget* search) {
        EXPECT_EQ(Row(search)->FoodName(), "Tom's granola");
        EXPECT_EQ(Row(search)->ServA(), "1 bowl");
        EXPECT_EQ(Row(search)->ServB(), "");
        EXPECT_FALSE(Row(search)->isRecipe());
        EXPECT_EQ(search->findChild<ucFood*>("ucFood2"), nullptr);
        Find<QCheckBox>(search, "ckCustom")->setChecked(false);
        Click(Find(search, "cmdGo"));
        EXPECT_EQ(search->findChild<ucFood*>("ucFood1"), nullptr);
    });
}

TEST_F(CustomFoodTest, ExaminedItShowsTheTypedAmountsTimesTheQuantity) {
    Make("Granola", "7");
    InSearch("granola", [](QWidget* search) {
        Find<QLineEdit>(Row(search), "txtQTY_A")->setText("2");
        WithModal(
            [](QWidget* facts) {
                for (const NutrientInfo& nutrient : Nutrients())
                    EXPECT_EQ(Find<QLabel>(facts, QLatin1String(nutrient.factsLabel))->text(),
                              "14.")
                        << nutrient.property;
                EXPECT_EQ(Find(facts, "aaServSize")->property("Caption"), "1 bowl (X 2)");
            },
            [search] { Click(Find(Row(search), "imgInfo_W_A")); });
    });
}

TEST_F(CustomFoodTest, LoggedItCountsTheTypedAmountsTimesTheQuantity) {
    Make("Granola", "7.5");
    Eat("granola", "2");
    for (const NutrientInfo& nutrient : Nutrients())
        EXPECT_EQ(
            Users(u"SELECT " + QLatin1String(nutrient.logColumn) + u" FROM USER_FOODS").toDouble(),
            15)
            << nutrient.property;
    EXPECT_EQ(LogCount("FoodName = 'Granola' AND Serving = '1 bowl' AND ID = 23509 "
                       "AND Meal = 'Snacks' AND QTY = 2"),
              1);
    EXPECT_EQ(Names(today.get()), QStringList{"Granola"});
}

TEST_F(CustomFoodTest, AnAmountLeftEmptyIsLoggedAsZero) {
    Make("Granola", "");
    Eat("granola", "3");
    EXPECT_EQ(Users("SELECT Calories FROM USER_FOODS"), 0.0);
}

TEST_F(CustomFoodTest, ANewNameIsFoundAndTheOldOneIsNot) {
    Make("Granola", "1");
    Find<QLineEdit>(foods.get(), "txtFoodName")->setText("Porridge");
    Click(Find(foods.get(), "cmdSave"));
    InSearch("porridge", [](QWidget* search) { EXPECT_EQ(Row(search)->ID(), "23509"); });
    InSearch("granola",
             [](QWidget* search) { EXPECT_EQ(search->findChild<ucFood*>("ucFood1"), nullptr); });
}

TEST_F(CustomFoodTest, ChangingOrDeletingItLeavesWhatWasEatenAlone) {
    Make("Granola", "7");
    Eat("granola", "1");
    const auto eaten = HalvaneTest::Rows(UserDB(), "SELECT * FROM USER_FOODS");
    Find<QLineEdit>(foods.get(), "txtFoodName")->setText("Porridge");
    Find<QLineEdit>(foods.get(), "txtCals")->setText("99");
    Click(Find(foods.get(), "cmdSave"));
    Delete();
    today->DoWinInit();
    EXPECT_EQ(HalvaneTest::Rows(UserDB(), "SELECT * FROM USER_FOODS"), eaten);
    EXPECT_EQ(Names(today.get()), QStringList{"Granola"});
}

TEST_F(CustomFoodTest, DeletingItLeavesTheIngredientsMadeOfItAlone) {
    Make("Granola", "7");
    UserDB().Raw().exec("INSERT INTO Ingredients (FoodName, RecipeID, Calories) "
                        "VALUES ('Granola', 1, 7)");
    Delete();
    EXPECT_EQ(Users("SELECT FoodName || Calories FROM Ingredients"), "Granola7.0");
}

TEST_F(CustomFoodTest, EatingAFoodThatWasDeletedMeanwhileFailsAndLogsNothing) {
    Make("Granola", "7");
    InSearch("granola", [this](QWidget* search) {
        Delete();
        EXPECT_EQ(FailureOf([search] { Row(search)->EatFood(23509, "A", 1, false); }), 3021);
        EXPECT_EQ(FailureOf([search] { Row(search)->ExamineFood(23509, "A", 1, false); }), 3021);
    });
    EXPECT_EQ(LogCount(), 0);
}

TEST_F(CustomFoodTest, AFoodThatTookTheKeyOfADeletedOneIsEatenUnderItsOwnName) {
    Make("Granola", "5");
    Eat("granola", "1");
    Delete();
    Make("Porridge", "3");
    Eat("porridge", "1");
    EXPECT_EQ(LogCount("ID = 23509"), 2);
    EXPECT_EQ(LogCount("FoodName = 'Granola' AND Calories = 5"), 1);
    EXPECT_EQ(LogCount("FoodName = 'Porridge' AND Calories = 3"), 1);
}

TEST_F(CustomFoodTest, AwkwardNamesAreFoundExaminedAndEaten) {
    const QString names[] = {QStringLiteral("O'Brien's granola'; DROP TABLE FOODS; --"),
                             "granola " + QString(9992, u'x'),
                             QStringLiteral("CRÈME granola <b>&amp;"),
                             QStringLiteral("granola") + QChar(0) + QStringLiteral("hidden")};
    for (const QString& name : names) {
        Make(name, "1");
        Eat("granola", "1");
        EXPECT_EQ(Users("SELECT FoodName FROM USER_FOODS ORDER BY RecID DESC LIMIT 1"), name);
        EXPECT_EQ(Names(today.get()).count(name), 1) << name.left(50).toStdString();
        Delete();
    }
    EXPECT_EQ(Foods("SELECT COUNT(*) FROM FOODS"), 1);
}
