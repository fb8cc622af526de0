#include "foods/FoodsTest.h"

#include "foods/ui/frmFoodSearch.h"
#include "foods/ui/frmNutInfo.h"
#include "foods/ui/ucFood.h"
#include "foods/ui/ucSearchResults.h"
#include "runtime/Seams.h"
#include "runtime/Settings.h"
#include "support/Restored.h"
#include "toolkit/ucRadio.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

class FrmFoodSearchTest : public FoodsTest {
protected:
    void SetUp() override {
        FoodsTest::SetUp();
        AddUser();
        AddFood({.id = 7, .name = "Bread", .nutrients = {{"Calories", 250}}});
    }

    static int Meal(const frmFoodSearch& dialog) {
        for (int i = 0; i < 4; ++i)
            if (Find<ucRadio>(&dialog, u"opMeal" + QString::number(i))->Value())
                return i;
        return -1;
    }
};

TEST_F(FrmFoodSearchTest, TheDialogHoldsThePanelTitleAndDone) {
    frmFoodSearch dialog;
    EXPECT_EQ(dialog.size(), QSize(640, 520));
    EXPECT_EQ(Find(&dialog, "ucTitleFlat1")->property("Caption").toString(), "Food Search");
    EXPECT_EQ(Find(&dialog, "cmdDone")->property("Caption").toString(), "Done");
    EXPECT_EQ(Find(&dialog, "ucSearchResults1"), dialog.ucSearchResults1());
    EXPECT_FALSE(dialog.ucSearchResults1()->RecipeMode());
    dialog.show();
    EXPECT_EQ(Find(&dialog, "ucTitleFlat1")->pos(), QPoint(0, 0));
    EXPECT_EQ(Find(&dialog, "ucTitleFlat1")->width(), dialog.width());
}

TEST_F(FrmFoodSearchTest, PressingAddTwiceRaisesTwoFoodsAndTheDialogStaysOpen) {
    frmFoodSearch dialog;
    dialog.show();
    QSignalSpy chosen(&dialog, &frmFoodSearch::FoodChosen);
    Search(*dialog.ucSearchResults1(), "bread");
    QWidget* add = Find(Rows(*dialog.ucSearchResults1())[0], "cmdEAT_a");
    Click(add);
    Click(add);
    EXPECT_EQ(chosen.size(), 2);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(FrmFoodSearchTest, ExaminingShowsTheFactsOverIt) {
    frmFoodSearch dialog;
    dialog.show();
    Search(*dialog.ucSearchResults1(), "bread");
    QWidget* examine = Find(Rows(*dialog.ucSearchResults1())[0], "imgInfo_W_A");
    WithModal(
        [](QWidget* facts) {
            EXPECT_NE(qobject_cast<frmNutInfo*>(facts), nullptr);
            EXPECT_EQ(Find<QLabel>(facts, "aaFoodName")->text(), "Bread");
        },
        [&] { Click(examine); });
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(FrmFoodSearchTest, TheFactsBelongToTheWindowOfTheScreenThatOwnsTheDialog) {
    QWidget home;
    QWidget screen(&home);
    home.show();
    frmFoodSearch dialog(&screen);
    dialog.show();
    Search(*dialog.ucSearchResults1(), "bread");
    QWidget* examine = Find(Rows(*dialog.ucSearchResults1())[0], "imgInfo_W_A");
    WithModal([&](QWidget* facts) { EXPECT_EQ(facts->parentWidget(), &home); },
              [&] { Click(examine); });
}

TEST_F(FrmFoodSearchTest, MessagesOfThePanelBelongToTheDialogAndHaveNoCancel) {
    frmFoodSearch dialog;
    dialog.show();
    QStringList messages;
    TheSeams().ShowAlert = [&](const QString& message, QObject* owner, bool cancel) {
        messages << message;
        EXPECT_EQ(owner, &dialog);
        EXPECT_FALSE(cancel);
        return true;
    };
    Search(*dialog.ucSearchResults1(), "bread");
    const QWidget* row = Rows(*dialog.ucSearchResults1())[0];
    Find<QLineEdit>(row, "txtQTY_A")->setText("0");
    Click(Find(row, "cmdEAT_a"));
    Click(Find(row, "imgInfo_W_A"));
    Search(*dialog.ucSearchResults1(), "");
    EXPECT_EQ(messages, QStringList({"Please enter a quantity (QTY) between .1 and 99",
                                     "Please enter a valid quantity (between .1 and 99)",
                                     "Please enter a search term."}));
}

TEST_F(FrmFoodSearchTest, DoneAndEscapeClose) {
    frmFoodSearch dialog;
    dialog.show();
    Click(Find(&dialog, "cmdDone"));
    EXPECT_FALSE(dialog.isVisible());
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(FrmFoodSearchTest, EnterInTheTermDoesNotCloseTheDialog) {
    frmFoodSearch dialog;
    dialog.show();
    auto* term = Find<QLineEdit>(&dialog, "txtSearchString");
    QTest::keyClicks(term, "bread");
    QTest::keyClick(term, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(NamesShown(*dialog.ucSearchResults1()), QStringList{"Bread"});
}

TEST_F(FrmFoodSearchTest, EnterInAQuantityAddsAndKeepsTheDialogOpen) {
    frmFoodSearch dialog;
    dialog.show();
    QSignalSpy chosen(&dialog, &frmFoodSearch::FoodChosen);
    Search(*dialog.ucSearchResults1(), "bread");
    QTest::keyClick(Find(Rows(*dialog.ucSearchResults1())[0], "txtQTY_A"), Qt::Key_Return);
    EXPECT_EQ(chosen.size(), 1);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(FrmFoodSearchTest, MovingTheMouseOverFormOrPanelResetsDone) {
    frmFoodSearch dialog;
    dialog.show();
    QWidget* done = Find(&dialog, "cmdDone");
    Hover(done);
    EXPECT_EQ(done->property("State").toInt(), 2);
    Hover(dialog.ucSearchResults1(), {300, 2});
    EXPECT_EQ(done->property("State").toInt(), 1);
    Hover(done);
    Hover(&dialog, {3, 500});
    EXPECT_EQ(done->property("State").toInt(), 1);
}

TEST_F(FrmFoodSearchTest, AReopenedDialogShowsTheOldTermAndMealWithoutResults) {
    {
        frmFoodSearch dialog;
        dialog.show();
        Click(Find(&dialog, "opMeal2"));
        Search(*dialog.ucSearchResults1(), "bread");
    }
    frmFoodSearch dialog;
    dialog.show();
    EXPECT_EQ(Find<QLineEdit>(&dialog, "txtSearchString")->text(), "bread");
    EXPECT_EQ(Meal(dialog), 2);
    EXPECT_TRUE(NamesShown(*dialog.ucSearchResults1()).isEmpty());
}

TEST_F(FrmFoodSearchTest, AMealSetBeforeShowingOverridesTheRestoredOne) {
    SetRegValue("OPMEAL", "1");
    frmFoodSearch dialog;
    dialog.ucSearchResults1()->SetMeal(3);
    dialog.show();
    EXPECT_EQ(Meal(dialog), 3);
}

TEST_F(FrmFoodSearchTest, TheTermHasTheFocusWhenTheDialogOpens) {
    frmFoodSearch dialog;
    WithModal(
        [](QWidget* shown) { EXPECT_EQ(shown->focusWidget()->objectName(), "txtSearchString"); },
        [&] { dialog.ShowModal(); });
}

TEST_F(FrmFoodSearchTest, ARestoredWindowKeepsItsFocus) {
    frmFoodSearch dialog;
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    Search(*dialog.ucSearchResults1(), "bread");
    QWidget* quantity = Find(Rows(*dialog.ucSearchResults1())[0], "txtQTY_A");
    quantity->setFocus();
    SendRestored(&dialog);
    SendRestored(dialog.ucSearchResults1());
    EXPECT_EQ(QApplication::focusWidget(), quantity);
}

TEST_F(FrmFoodSearchTest, DoneComesLastInTheTabOrder) {
    AddFoods(30, 100, "bread");
    frmFoodSearch dialog;
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    Search(*dialog.ucSearchResults1(), "bread");
    Find(&dialog, "txtSearchString")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "cmdDone");
}
