#include "core/KeysAlone.h"

#include "core/Navigation.h"
#include "core/Screens.h"
#include "core/frmHOME.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Seams.h"
#include "store/Connection.h"

#include <QApplication>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr int MostStops = 300;
}

void KeysAlone::SetUp() {
    CoreTest::SetUp();
    OpenEmptyDatabases();
    Clock::SetToday(today_);
    for (const char* food :
         {"23507, 'Oats, rolled', 250, '1 cup'", "23508, 'Butter, salted', 36, '1 pat'"})
        FoodDB().Raw().exec(std::string("INSERT INTO FOODS (ID, FoodName, Calories, Serv_Desc_A, "
                                        "Serv_GM_WT_A) VALUES (") +
                            food + ", 100)");
    person_ = AddUser();
    RegisterScreens(TheNavigation());
    ::ShowHome();
    Activate(TheNavigation().Frame());
}

QWidget* KeysAlone::Focus() {
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget* focus = QApplication::focusWidget())
        return focus;
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : TheNavigation().Frame();
}

void KeysAlone::Press(Qt::Key key, Qt::KeyboardModifiers held) {
    QTest::keyClick(Focus(), key, held);
    RunDeferredDeletes();
}

void KeysAlone::Type(const QString& text) {
    PressControl(Qt::Key_A);
    QTest::keyClicks(Focus(), text);
}

void KeysAlone::TabTo(const QString& name) {
    for (int i = 0; i < MostStops && Focus()->objectName() != name; ++i)
        Press(Qt::Key_Tab);
    EXPECT_EQ(Focus()->objectName(), name);
}

void KeysAlone::TabAndPress(const QString& name) {
    TabTo(name);
    Press(Qt::Key_Return);
}

void KeysAlone::TabAndOpen(const QString& name, const std::function<void()>& within) {
    TabTo(name);
    InDialog([] { Press(Qt::Key_Return); }, within);
}

/// A window whose owner is active counts as active before it has the keyboard.
void KeysAlone::InDialog(const std::function<void()>& open, const std::function<void()>& within) {
    const auto work = [&within](QWidget* dialog) {
        dialog->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([dialog] { return QApplication::activeWindow() == dialog; }));
        const QPointer<QWidget> alive = dialog;
        within();
        if (alive && alive->isVisible())
            Press(Qt::Key_Escape);
    };
    const QPointer<QWidget> below = QApplication::activeWindow();
    WithModal(work, open);
    if (below && below->isVisible())
        Activate(below);
}

void KeysAlone::Search(const QString& words) {
    Type(words);
    Press(Qt::Key_Return);
}

/// Menus open a moment after their key.
void KeysAlone::WaitForMenu(const QString& name) {
    EXPECT_TRUE(QTest::qWaitFor([&name] {
        const QWidget* menu = QApplication::activePopupWidget();
        return menu && menu->objectName() == name;
    })) << name.toStdString();
}

void KeysAlone::Log(const QString& meal) {
    SQLite::Statement insert(UserDB().Raw(),
                             "INSERT INTO USER_FOODS (UID, UDate, Meal, FoodName, SERVING, QTY, "
                             "Calories) VALUES (?, ?, ?, 'Oats, rolled', '1 cup', 1, 250)");
    insert.bind(1, person_);
    insert.bind(2, ChosenDay().toString(Qt::ISODate).toStdString());
    insert.bind(3, meal.toStdString());
    insert.exec();
}

void KeysAlone::AddRecipe() {
    UserDB().Raw().exec("INSERT INTO Recipes (RecipeName, ServingName, RecipeYield, PrepTime, "
                        "Instructions) VALUES ('Soup', '1 bowl', 4, 30, 'Stir.')");
    UserDB().Raw().exec("INSERT INTO Ingredients (RecipeID, FoodName, Serving, QTY, Calories) "
                        "VALUES (1, 'Oats, rolled', '1 cup', 1, 250)");
}

QString KeysAlone::Front() {
    return TheNavigation().Front() ? TheNavigation().Front()->objectName() : QString();
}

QDate KeysAlone::ChosenDay() {
    return App().CurrentDate;
}
