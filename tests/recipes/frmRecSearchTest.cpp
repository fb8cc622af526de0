#include "recipes/RecipesTest.h"

#include "foods/ui/frmNutInfo.h"
#include "foods/ui/ucFood.h"
#include "foods/ui/ucSearchResults.h"
#include "recipes/RecipeBook.h"
#include "recipes/ui/frmRecSearch.h"
#include "recipes/ui/ucIngredients.h"
#include "runtime/Settings.h"
#include "store/Connection.h"
#include "store/Schema.h"
#include "support/Restored.h"

#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <SQLiteCpp/SQLiteCpp.h>

class frmRecSearchTest : public RecipesTest {
protected:
    void SetUp() override {
        RecipesTest::SetUp();
        AddFood({.id = 7, .name = "Bread", .gramsA = 30.0, .nutrients = {{"Calories", 250}}});
        recipe = RecipeBook::AddRecipe();
        list.SetRecipeID(recipe);
        list.resize(400, 200);
        list.DisplayFoods(true);
        QObject::connect(&dialog, &SearchDialog::FoodChosen, &list,
                         [this](const QString&, const ScaledFood& item) {
                             RecipeBook::AddIngredient(recipe, item);
                         });
        dialog.show();
    }

    QWidget* First(const char* name) { return Find(Rows(*dialog.Panel()).value(0), name); }
    void Add(const QString& term, const QString& quantity = QStringLiteral("1")) {
        Search(*dialog.Panel(), term);
        Find<QLineEdit>(Rows(*dialog.Panel()).value(0), "txtQTY_A")->setText(quantity);
        Click(First("cmdEAT_a"));
    }
    QLabel* Notice() { return Find<QLabel>(&dialog, "lblInfo"); }
    QTimer* Hider() { return Find<QTimer>(&dialog, "tmrHider"); }
    /// Raises the timer's tick without waiting for it.
    void Tick() {
        QTimerEvent tick(Hider()->timerId());
        QCoreApplication::sendEvent(Hider(), &tick);
    }
    int Lines() {
        return int(list.findChildren<QWidget*>(QRegularExpression("^ucAte[1-9]")).size());
    }

    qint32 recipe = 0;
    frmRecSearch dialog;
    ucIngredients list;
};

TEST_F(frmRecSearchTest, TheDialogHoldsThePanelTitleDoneAndTheHiddenNotice) {
    EXPECT_EQ(dialog.objectName(), "frmRecSearch");
    EXPECT_EQ(dialog.size(), QSize(640, 520));
    EXPECT_EQ(Find(&dialog, "ucTitleFlat1")->property("Caption").toString(), "Add foods to recipe");
    EXPECT_EQ(Find(&dialog, "cmdDone")->property("Caption").toString(), "Done");
    EXPECT_EQ(Find(&dialog, "ucSearch"), dialog.Panel());
    EXPECT_TRUE(dialog.Panel()->RecipeMode());
    EXPECT_EQ(Notice()->text(), "Food added to recipe");
    EXPECT_FALSE(Notice()->isVisible());
    EXPECT_EQ(Hider()->interval(), 2000);
    EXPECT_FALSE(Hider()->isActive());
    EXPECT_EQ(Find<QTimer>(&dialog, "cleanUp")->interval(), 250);
}

TEST_F(frmRecSearchTest, AnIngredientHasNoMealToChoose) {
    for (int i = 1; i < 4; ++i)
        EXPECT_FALSE(Find(&dialog, "opMeal" + QString::number(i))->isVisible()) << i;
    Search(*dialog.Panel(), "bread");
    EXPECT_TRUE(Rows(*dialog.Panel()).value(0)->property("RecipeMode").toBool());
}

TEST_F(frmRecSearchTest, ThreeAddsAreThreeRowsAndTheListFollowsOnDone) {
    for (int i = 0; i < 3; ++i)
        Add("bread", "2");
    EXPECT_EQ(Count("Ingredients", "Calories = 150 AND QTY = 2 AND FoodName = 'Bread'"), 3);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Lines(), 0);
    Click(Find(&dialog, "cmdDone"));
    EXPECT_FALSE(dialog.isVisible());
    list.DisplayFoods(true);
    EXPECT_EQ(Lines(), 3);
}

TEST_F(frmRecSearchTest, TheNoticeComesWithTheFoodAndGoesAtTheNextTick) {
    Add("bread");
    EXPECT_TRUE(Notice()->isVisible());
    EXPECT_TRUE(Hider()->isActive());
    Tick();
    EXPECT_FALSE(Notice()->isVisible());
    EXPECT_FALSE(Hider()->isActive());
}

TEST_F(frmRecSearchTest, ASecondFoodDoesNotStartTheTimerAnew) {
    Add("bread");
    const auto late = [this] { return Hider()->remainingTime() <= 1970; };
    ASSERT_TRUE(QTest::qWaitFor(late));
    Add("bread");
    EXPECT_TRUE(late());
    Tick();
    EXPECT_FALSE(Notice()->isVisible());
    Add("bread");
    EXPECT_TRUE(Notice()->isVisible());
    EXPECT_TRUE(Hider()->isActive());
}

TEST_F(frmRecSearchTest, ATickWithoutANoticeLeavesTheTimerRunning) {
    Hider()->start();
    Tick();
    EXPECT_TRUE(Hider()->isActive());
    EXPECT_FALSE(Notice()->isVisible());
}

TEST_F(frmRecSearchTest, ARefusedQuantityAddsNothingAndShowsNoNotice) {
    for (const char* quantity : {"", "abc", "0", "99.01", "1e400", "'; DROP TABLE Recipes; --"}) {
        ExpectAlert("Please enter a quantity (QTY) between .1 and 99");
        Add("bread", quantity);
        EXPECT_FALSE(Notice()->isVisible()) << quantity;
    }
    EXPECT_EQ(Count("Ingredients"), 0);
}

TEST_F(frmRecSearchTest, AFoodThatCannotBeAddedShowsNoNotice) {
    Search(*dialog.Panel(), "bread");
    UserDB().Raw().exec("CREATE TRIGGER full BEFORE INSERT ON Ingredients "
                        "BEGIN SELECT RAISE(ABORT, 'full'); END");
    auto* row = Rows(*dialog.Panel()).value(0);
    EXPECT_LT(FailureOf([&] { row->EatFood(7, "A", 1, false); }), 0);
    EXPECT_FALSE(Notice()->isVisible());
    EXPECT_EQ(Count("Ingredients"), 0);
}

TEST_F(frmRecSearchTest, ExaminingShowsTheFactsAndAddsNothing) {
    Search(*dialog.Panel(), "bread");
    WithModal(
        [](QWidget* facts) {
            EXPECT_NE(qobject_cast<frmNutInfo*>(facts), nullptr);
            EXPECT_EQ(Find<QLabel>(facts, "aaFoodName")->text(), "Bread");
        },
        [&] { Click(First("imgInfo_W_A")); });
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(Notice()->isVisible());
    EXPECT_EQ(Count("Ingredients"), 0);
}

TEST_F(frmRecSearchTest, ARecipeCanBecomeAnIngredientOfAnotherAndOfItself) {
    const qint32 soup = AddRecipe("Bread soup", "1 bowl");
    RecipesTest::AddIngredient(soup, {{"Calories", 300}, {"VitaminC", 12}});
    Add("soup", "2");
    EXPECT_EQ(Rows(UserDB(), "SELECT FoodName, Serving, QTY, Calories, VitaminC FROM Ingredients "
                             "WHERE RecipeID = " +
                                 QString::number(recipe))
                  .value(0),
              (QVariantList{"Bread soup", "1 bowl", 2.0, 600.0, 24.0}));
    Add("my recipe", "1");
    EXPECT_EQ(Count("Ingredients", "FoodName = 'My Recipe'"), 1);
}

TEST_F(frmRecSearchTest, ACustomFoodCountsTheTypedAmountsTimesTheQuantity) {
    AddFood({.id = Schema::LastStockFood + 1,
             .name = "Granola of mine",
             .servA = "1 handful",
             .servB = "",
             .nutrients = {{"Calories", 180}, {"Protein", 4.5}}});
    Add("granola", "1.5");
    EXPECT_EQ(Rows(UserDB(), "SELECT Calories, Protein, Serving, QTY FROM Ingredients").value(0),
              (QVariantList{270.0, 6.75, "1 handful", 1.5}));
}

TEST_F(frmRecSearchTest, AddingACustomFoodThatWasDeletedMeanwhileFailsAndAddsNothing) {
    const int own = Schema::LastStockFood + 1;
    AddFood({.id = own, .name = "Granola of mine"});
    Search(*dialog.Panel(), "granola");
    FoodDB().Raw().exec("DELETE FROM FOODS");
    auto* row = Rows(*dialog.Panel()).value(0);
    EXPECT_EQ(FailureOf([&] { row->EatFood(own, "A", 1, false); }), 3021);
    EXPECT_EQ(FailureOf([&] { row->ExamineFood(own, "A", 1, false); }), 3021);
    EXPECT_EQ(Count("Ingredients"), 0);
    EXPECT_FALSE(Notice()->isVisible());
}

TEST_F(frmRecSearchTest, MovingTheMouseOverFormOrPanelResetsTheButtons) {
    QWidget* done = Find(&dialog, "cmdDone");
    QWidget* go = Find(&dialog, "cmdGo");
    const auto light = [&] {
        Hover(done);
        Hover(go);
        EXPECT_EQ(done->property("State").toInt(), 2);
        EXPECT_EQ(go->property("State").toInt(), 2);
    };
    light();
    Hover(dialog.Panel(), {300, 2});
    EXPECT_EQ(done->property("State").toInt(), 1);
    EXPECT_EQ(go->property("State").toInt(), 1);
    light();
    Hover(&dialog, {3, 500});
    EXPECT_EQ(done->property("State").toInt(), 1);
    EXPECT_EQ(go->property("State").toInt(), 1);
}

TEST_F(frmRecSearchTest, OpensAtTheTopLeftOfItsOwnerAndStaysWhereItIsDragged) {
    QWidget frame;
    frame.setGeometry(120, 90, 800, 600);
    QWidget screen(&frame);
    screen.setGeometry(84, 58, 700, 500);
    frame.show();
    frmRecSearch placed(&screen);
    placed.show();
    EXPECT_EQ(placed.pos(), QPoint(204, 148));
    placed.move(11, 22);
    SendRestored(&placed);
    EXPECT_EQ(placed.pos(), QPoint(11, 22));
}

TEST_F(frmRecSearchTest, EscapeClosesAndTheTermAndMealAreKept) {
    SetRegValue("OPMEAL", "2");
    {
        frmRecSearch first;
        first.show();
        Search(*first.Panel(), "bread");
        QTest::keyClick(&first, Qt::Key_Escape);
        EXPECT_FALSE(first.isVisible());
    }
    EXPECT_EQ(GetRegValue("OPMEAL"), "2");
    const frmRecSearch again;
    EXPECT_EQ(Find<QLineEdit>(&again, "txtSearchString")->text(), "bread");
}
