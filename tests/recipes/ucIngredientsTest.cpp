#include "recipes/RecipesTest.h"

#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "recipes/ui/ucIngredients.h"
#include "runtime/AppState.h"
#include "runtime/Round.h"
#include "store/Connection.h"
#include "toolkit/MousePointer.h"
#include "toolkit/ucAte.h"
#include "toolkit/ucButtonA.h"
#include "toolkit/ucScroll.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

class ucIngredientsTest : public RecipesTest {
protected:
    static constexpr int FrameHeight = 210;

    void SetUp() override {
        RecipesTest::SetUp();
        window.resize(500, FrameHeight + 2);
        list.resize(window.size());
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        recipe = AddRecipe("Soup", "1 bowl");
        list.SetRecipeID(recipe);
    }

    void Show(int count) {
        AddIngredients(recipe, count);
        list.DisplayFoods(true);
    }
    void AddLine(const QString& name, const QVariant& serving, double quantity) {
        SQLite::Statement insert(
            UserDB().Raw(),
            "INSERT INTO Ingredients (RecipeID, FoodName, Serving, QTY) VALUES (?, ?, ?, ?)");
        insert.bind(1, recipe);
        insert.bind(2, name.toStdString());
        if (!serving.isNull())
            insert.bind(3, serving.toString().toStdString());
        insert.bind(4, quantity);
        insert.exec();
    }

    QWidget* Pane() { return Find(&list, "picResultsPane"); }
    QWidget* Box() { return Find(&list, "picResultsBox"); }
    ucScroll* Bar() { return Find<ucScroll>(&list, "vsResultsPane"); }
    ucAte* Line(int index) { return Find<ucAte>(&list, "ucAte" + QString::number(index)); }
    QStringList Names() {
        QStringList names;
        while (const auto* line =
                   list.findChild<ucAte*>("ucAte" + QString::number(names.size() + 1)))
            names << line->FoodName();
        return names;
    }

    QWidget window;
    ucIngredients list{&window};
    qint32 recipe = 0;
};

TEST_F(ucIngredientsTest, ARecipeWithoutIngredientsShowsNoRowsAndNoBarButReservesARow) {
    list.DisplayFoods(true);
    EXPECT_TRUE(Names().isEmpty());
    EXPECT_FALSE(Bar()->isVisible());
    EXPECT_FALSE(Line(0)->isVisible());
    EXPECT_EQ(Pane()->height(), Line(0)->height());
    EXPECT_EQ(Line(0)->height(), TheStyle().tallRowHeight);
}

TEST_F(ucIngredientsTest, ALineShowsNameServingQuantityAndKey) {
    AddLine("Carrots, raw", "1 cup, chopped", 1.5);
    list.DisplayFoods(true);
    EXPECT_EQ(Line(1)->property("FoodName"), "Carrots, raw");
    EXPECT_EQ(Line(1)->property("Serv"), "1 cup, chopped");
    EXPECT_EQ(Line(1)->property("QTY"), "(x 1.5)");
    EXPECT_EQ(Line(1)->property("ID").toString(), Users("SELECT ID FROM Ingredients").toString());
    EXPECT_TRUE(Line(1)->isVisible());
}

TEST_F(ucIngredientsTest, AQuantityIsInItsShortestDecimalText) {
    const std::pair<double, const char*> cases[] = {
        {1.5, "(x 1.5)"}, {2, "(x 2)"}, {0.1, "(x 0.1)"}, {99, "(x 99)"}, {-3.25, "(x -3.25)"}};
    for (const auto& [quantity, text] : cases)
        AddLine("Food", "1 cup", quantity);
    list.DisplayFoods(true);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(Line(i + 1)->property("QTY"), cases[i].second);
}

TEST_F(ucIngredientsTest, AnUnknownQuantityShowsAsOne) {
    AddLine("Salt", "1 tsp", 7);
    UserDB().Raw().exec("UPDATE Ingredients SET QTY = NULL");
    list.DisplayFoods(true);
    EXPECT_EQ(Line(1)->property("QTY"), "(x 1)");
}

TEST_F(ucIngredientsTest, ANullServingIsAnEmptyText) {
    AddLine("Salt", QVariant(), 1);
    list.DisplayFoods(true);
    EXPECT_EQ(Line(1)->Serv(), "");
    EXPECT_EQ(Line(1)->Caption(), "Salt, (x 1)");
}

TEST_F(ucIngredientsTest, LinesStandInTheOrderOfAddingOneBelowTheOther) {
    AddLine("Water", "1 cup", 1);
    AddLine("Apples", "1 cup", 1);
    AddLine("Milk", "1 cup", 1);
    list.DisplayFoods(true);
    EXPECT_EQ(Names(), (QStringList{"Water", "Apples", "Milk"}));
    const int height = TheStyle().tallRowHeight;
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(Line(i)->y(), (i - 1) * height);
        EXPECT_EQ(Line(i)->width(), Pane()->width());
    }
    EXPECT_EQ(Pane()->height(), 3 * height);
    EXPECT_EQ(Pane()->width(), Box()->width());
}

TEST_F(ucIngredientsTest, OnlyTheRecipesOwnIngredientsAreShown) {
    AddIngredients(recipe + 1, 3);
    AddLine("Salt", "1 tsp", 1);
    list.DisplayFoods(true);
    EXPECT_EQ(Names(), QStringList{"Salt"});
    list.setProperty("RecipeID", recipe + 1);
    EXPECT_EQ(Names(), QStringList{"Salt"}) << "shown from DisplayFoods on";
    list.DisplayFoods(true);
    EXPECT_EQ(Names().size(), 3);
    list.SetRecipeID(4711);
    list.DisplayFoods(true);
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(ucIngredientsTest, TheLimitOfTheDaysListDoesNotApply) {
    App().AppInfo.LIMITRESULTS = true;
    Show(320);
    EXPECT_EQ(Names().size(), 320);
}

TEST_F(ucIngredientsTest, AListAsHighAsTheFrameNeedsNoBar) {
    const int height = 5 * TheStyle().tallRowHeight;
    Show(5);
    list.resize(500, height + 2);
    EXPECT_FALSE(Bar()->isVisible());
    list.resize(500, height + 1);
    EXPECT_TRUE(Bar()->isVisible());
    list.resize(500, height + 2);
    EXPECT_FALSE(Bar()->isVisible());
    EXPECT_EQ(Pane()->height(), height);
}

TEST_F(ucIngredientsTest, ALongListSetsTheBarUp) {
    Show(20);
    EXPECT_TRUE(Bar()->isVisible());
    EXPECT_EQ(Bar()->Min(), 0);
    EXPECT_EQ(Bar()->Max(), Round(Twips::FromPixels(Pane()->height() - Box()->height()) / 10.0));
    EXPECT_EQ(Bar()->LargeChange(), 100);
    EXPECT_EQ(Bar()->SmallChange(), 20);
    EXPECT_EQ(Pane()->height(), 20 * TheStyle().tallRowHeight);
    EXPECT_LE(Line(1)->geometry().right(), Bar()->x());
}

TEST_F(ucIngredientsTest, OneValueOfTheBarIsTenUnitsOfThePane) {
    Show(20);
    Bar()->SetValue(60);
    EXPECT_EQ(Pane()->y(), Twips::ToPixels(-600));
    Bar()->SetValue(Bar()->Max());
    EXPECT_EQ(Pane()->y() + Pane()->height(), Box()->height());
}

TEST_F(ucIngredientsTest, AResetShowsTheTopAndARedrawWithoutItKeepsThePlace) {
    Show(20);
    Bar()->SetValue(60);
    list.DisplayFoods(false);
    EXPECT_EQ(Bar()->Value(), 60);
    EXPECT_EQ(Pane()->y(), Twips::ToPixels(-600));
    list.DisplayFoods(true);
    EXPECT_EQ(Bar()->Value(), 0);
    EXPECT_EQ(Pane()->y(), 0);
}

TEST_F(ucIngredientsTest, AShorterRecipeStandsAtTheTopWithoutABar) {
    Show(20);
    Bar()->SetValue(Bar()->Max());
    list.SetRecipeID(AddRecipe("Tea", "1 cup"));
    list.DisplayFoods(false);
    EXPECT_FALSE(Bar()->isVisible());
    EXPECT_EQ(Pane()->y(), 0);
}

TEST_F(ucIngredientsTest, ClearingUnloadsAllLinesAndHidesTheBar) {
    Show(20);
    list.ClearList();
    EXPECT_TRUE(Names().isEmpty());
    EXPECT_FALSE(Bar()->isVisible());
    list.resize(400, 100);
    EXPECT_FALSE(Bar()->isVisible());
    EXPECT_EQ(Count("Ingredients"), 20);
    list.DisplayFoods(true);
    EXPECT_EQ(Names().size(), 20);
    EXPECT_TRUE(Bar()->isVisible());
}

TEST_F(ucIngredientsTest, ALineIsRemovedAtOnceAndThenFoodRemovedIsRaised) {
    Show(3);
    int rowsLeft = -1;
    QStringList shown;
    QObject::connect(&list, &ucIngredients::FoodRemoved, &list, [&] {
        rowsLeft = Count("Ingredients");
        shown = Names();
    });
    const QString key = Line(2)->ID();
    Click(Line(2)->imgTrash());
    EXPECT_EQ(Count("Ingredients", "ID = " + key), 0);
    EXPECT_EQ(rowsLeft, 2);
    EXPECT_EQ(shown, (QStringList{"Food 1", "Food 3"}));
    EXPECT_FALSE(MousePointer::IsBusy());
}

TEST_F(ucIngredientsTest, RemovingTheOnlyIngredientLeavesAnEmptyList) {
    Show(1);
    Click(Line(1)->imgTrash());
    EXPECT_TRUE(Names().isEmpty());
    EXPECT_EQ(Pane()->height(), TheStyle().tallRowHeight);
    EXPECT_EQ(Count("Recipes"), 1);
}

TEST_F(ucIngredientsTest, RemovingTheLastLineOfAScrolledListShowsTheTop) {
    Show(20);
    Bar()->SetValue(Bar()->Max());
    Click(Line(20)->imgTrash());
    EXPECT_EQ(Names().size(), 19);
    EXPECT_EQ(Bar()->Value(), 0);
    EXPECT_EQ(Pane()->y(), 0);
}

TEST_F(ucIngredientsTest, AKeyRemovesNoLineThatIsOutOfView) {
    Show(20);
    Line(15)->imgTrash()->setFocus(Qt::TabFocusReason);
    EXPECT_GT(Bar()->Value(), 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
    EXPECT_EQ(Names().size(), 19);
    EXPECT_EQ(Pane()->y(), 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
    EXPECT_EQ(Names().size(), 19);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), Bar());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), Line(1)->imgTrash());
}

TEST_F(ucIngredientsTest, InAShortListTheFocusStaysInThePlaceOfARemovedLine) {
    Show(3);
    Line(2)->imgTrash()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
    EXPECT_EQ(Names(), (QStringList{"Food 1", "Food 3"}));
    EXPECT_EQ(QApplication::focusWidget(), Line(2)->imgTrash());
}

TEST_F(ucIngredientsTest, ALineThatCannotBeRemovedStaysUntilTheNextRedraw) {
    Show(2);
    UserDB().Raw().exec("DELETE FROM Ingredients");
    QSignalSpy removed(&list, &ucIngredients::FoodRemoved);
    Click(Line(1)->imgTrash());
    EXPECT_TRUE(removed.isEmpty());
    EXPECT_FALSE(MousePointer::IsBusy());
    EXPECT_EQ(Names(), (QStringList{"Food 1", "Food 2"}));
    list.DisplayFoods(true);
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(ucIngredientsTest, AnAddedFoodIsARowOfItsRecipeAndShownAtOnce) {
    Show(2);
    list.AddFood(Counting("Flour", 2.5));
    EXPECT_EQ(Names(), (QStringList{"Food 1", "Food 2", "Flour"}));
    EXPECT_EQ(Line(3)->property("QTY"), "(x 2.5)");
    EXPECT_EQ(Count("Ingredients", "VitaminC = 1 AND RecipeID = " + QString::number(recipe)), 1);
}

TEST_F(ucIngredientsTest, AwkwardTextsAreShownAndRemoved) {
    const QStringList names{"O'Brien's '); DROP TABLE Ingredients; --", QString(10000, u'x'),
                            "<b>bold</b> & more", "two\nlines", ""};
    for (const QString& name : names)
        AddLine(name, name, 1);
    list.DisplayFoods(true);
    EXPECT_EQ(Names(), names);
    EXPECT_EQ(Line(2)->Serv(), names[1]);
    EXPECT_FALSE(Grab(&list).isNull());
    for (int i = 0; i < names.size(); ++i)
        Click(Line(1)->imgTrash());
    EXPECT_EQ(Count("Ingredients"), 0);
}

TEST_F(ucIngredientsTest, ANewWidthReachesEveryLine) {
    Show(2);
    list.resize(300, 200);
    EXPECT_EQ(Line(2)->width(), 298);
    EXPECT_EQ(Box()->width(), 298);
}

TEST_F(ucIngredientsTest, TabVisitsTheTrashCansFromTopToBottom) {
    Show(3);
    Line(1)->imgTrash()->setFocus();
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(QApplication::focusWidget(), Line(i)->imgTrash()) << i;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
}
