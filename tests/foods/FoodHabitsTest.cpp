#include "foods/FoodHabits.h"

#include "foods/FoodsTest.h"

#include "foods/SearchTerms.h"
#include "foods/ui/ucSearchResults.h"
#include "model/User.h"
#include "store/Connection.h"
#include "toolkit/ucRadio.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

class FoodHabitsTest : public FoodsTest {
protected:
    enum { Breakfast, Lunch };

    void SetUp() override {
        FoodsTest::SetUp();
        AddUser();
    }
    void Log(const QString& food, const QString& meal = QStringLiteral("Lunch")) {
        SQLite::Statement insert(UserDB().Raw(),
                                 "INSERT INTO USER_FOODS (UID, FoodName, Meal) VALUES (?, ?, ?)");
        insert.bind(1, User::Current().UID);
        insert.bind(2, food.toStdString());
        insert.bind(3, meal.toStdString());
        insert.exec();
    }
    /// The lines of the list that the field has opened; choosing none closes it.
    static QStringList Lines() {
        QStringList lines;
        if (const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget()))
            for (const QAction* line : menu->actions())
                lines << (line->isEnabled() ? line->text() : line->text() + u':');
        return lines;
    }
    static void Key(QWidget* field, Qt::Key key) {
        QWidget* popup = QApplication::activePopupWidget();
        QTest::keyClick(popup ? popup : field, key);
    }
};

TEST_F(FoodHabitsTest, TheLastFoodsOfAMealComeFirst) {
    for (const char* food : {"Oats", "Milk", "Oats", "Soup"})
        Log(food);
    Log("Tea", "Breakfast");
    const FoodHabits::Names names = FoodHabits::OfMeal(Lunch, 8);
    EXPECT_EQ(names.last, (QStringList{"Soup", "Oats", "Milk"}));
    EXPECT_TRUE(names.most.isEmpty());
}

TEST_F(FoodHabitsTest, TheMostLoggedFoodsFollowWithoutThoseAbove) {
    for (const char* food : {"Oats", "Oats", "Oats", "Milk", "Milk", "Tea", "Soup", "Bread"})
        Log(food);
    const FoodHabits::Names names = FoodHabits::OfMeal(Lunch, 2);
    EXPECT_EQ(names.last, (QStringList{"Bread", "Soup"}));
    EXPECT_EQ(names.most, (QStringList{"Oats", "Milk"}));
}

TEST_F(FoodHabitsTest, OtherPeopleAndBlankNamesDoNotCount) {
    Log("Oats");
    AddUser("Ben");
    Log(" ");
    Log("");
    UserDB().Raw().exec("INSERT INTO USER_FOODS (UID, Meal) VALUES (2, 'Lunch')");
    EXPECT_TRUE(FoodHabits::OfMeal(Lunch, 8).last.isEmpty());
}

TEST_F(FoodHabitsTest, TheTermOfANameHoldsNoCharacterThatATermCannotHold) {
    EXPECT_EQ(SearchTerms::ForName("Ben's \"best\"*  bread, 2%"), "Ben s best bread, 2%");
    EXPECT_EQ(SearchTerms::ForName(QString(300, u'x')).size(), SearchTerms::Longest);
}

TEST_F(FoodHabitsTest, TheDownKeyInAnEmptyFieldListsThemAndEnterSearchesForOne) {
    AddFood({.id = 1, .name = "Ben's bread & butter"});
    AddFood({.id = 2, .name = "Oats"});
    Log("Oats");
    Log("Ben's bread & butter");
    ucSearchResults panel;
    panel.resize(612, 440);
    panel.show();
    panel.SetMeal(Lunch);
    auto* field = Find<QLineEdit>(&panel, "txtSearchString");
    Key(field, Qt::Key_Down);
    EXPECT_EQ(Lines(), (QStringList{"Logged last:", "Ben's bread && butter", "Oats"}));
    Key(field, Qt::Key_Return);
    EXPECT_EQ(field->text(), "Ben s bread & butter");
    EXPECT_EQ(NamesShown(panel), QStringList{"Ben's bread & butter"});
}

TEST_F(FoodHabitsTest, TheListStaysUntilItIsOpenedAgain) {
    Log("Oats", "Breakfast");
    ucSearchResults panel;
    panel.show();
    panel.SetMeal(Breakfast);
    auto* field = Find<QLineEdit>(&panel, "txtSearchString");
    Key(field, Qt::Key_Down);
    const QPointer<QWidget> list = QApplication::activePopupWidget();
    Key(field, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(list.isNull());
    Key(field, Qt::Key_Down);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(list.isNull());
}

TEST_F(FoodHabitsTest, TheListIsThatOfTheTickedMeal) {
    Log("Oats", "Breakfast");
    ucSearchResults panel;
    panel.show();
    panel.SetMeal(Lunch);
    auto* field = Find<QLineEdit>(&panel, "txtSearchString");
    Key(field, Qt::Key_Down);
    EXPECT_TRUE(Lines().isEmpty());
    panel.SetMeal(Breakfast);
    Key(field, Qt::Key_Down);
    EXPECT_EQ(Lines(), (QStringList{"Logged last:", "Oats"}));
    Key(field, Qt::Key_Escape);
    EXPECT_EQ(field->text(), "");
}

TEST_F(FoodHabitsTest, AFieldWithATermAndTheSearchForIngredientsListNothing) {
    Log("Oats", "Breakfast");
    ucSearchResults panel;
    panel.show();
    panel.SetMeal(Breakfast);
    auto* field = Find<QLineEdit>(&panel, "txtSearchString");
    field->setText("o");
    Key(field, Qt::Key_Down);
    EXPECT_TRUE(Lines().isEmpty());
    field->clear();
    panel.SetRecipeMode(true);
    Key(field, Qt::Key_Down);
    EXPECT_TRUE(Lines().isEmpty());
}

TEST_F(FoodHabitsTest, AnEmptySearchIsStillRefused) {
    Log("Oats", "Breakfast");
    ucSearchResults panel;
    panel.show();
    ExpectAlert("Please enter a search term.");
    Key(Find<QLineEdit>(&panel, "txtSearchString"), Qt::Key_Return);
}
