#include "foods/ScaledFood.h"
#include "foods/ui/frmFoodList.h"
#include "intake/ui/frmDay.h"
#include "intake/ui/ucMyFood.h"
#include "model/User.h"
#include "recipes/ui/frmRecipeManager.h"
#include "runtime/AppPath.h"
#include "runtime/AppState.h"
#include "store/Connection.h"
#include "store/Recordset.h"
#include "toolkit/ucButton.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <cstdio>

/// log_worker FOLDER FIRST: logs foods and weights on the day screen, and makes custom foods,
/// recipes and ingredients on their screens, until it is killed. It numbers them from FIRST on, and
/// prints each number once the screen has saved it.

namespace {
void Acknowledge(const char* kind, int number) {
    std::printf("%s %d\n", kind, number);
    std::fflush(stdout);
}

void OpenFolder(const QString& folder) {
    SetApplicationPath(folder);
    UserDB().Open(FileBeside(QStringLiteral("users.mdb")), DatabaseKind::Users);
    FoodDB().Open(FileBeside(QStringLiteral("foods.mdb")), DatabaseKind::Foods);
    App().AppStarted = true;
    App().CurrentDate = QDate(2026, 11, 21);
    const Recordset first(UserDB(), QStringLiteral("SELECT * FROM profiles"));
    User::Current().UID = first[QStringLiteral("UID")].Integer();
    User::Current().GetUserProfile(User::Current().UID);
}

void LogFood(frmDay& day, int number) {
    day.findChild<ucMyFood*>()->AddFood(
        ScaledFood::FromCatalogue(23508, QStringLiteral("A"), number), QStringLiteral("Lunch"));
    Acknowledge("food", number);
}

/// The number is the weight, and the day counted from the beginning of the year 2000.
void LogWeight(frmDay& day, int number) {
    App().CurrentDate = QDate(2000, 1, 1).addDays(number);
    day.DoWinInit();
    auto* weight = day.findChild<QLineEdit*>(QStringLiteral("txtWeight"));
    weight->setFocus();
    weight->setText(QString::number(number));
    weight->clearFocus();
    Acknowledge("weight", number);
}

/// The number is both the name and the calories.
void MakeCustomFood(frmFoodList& foods, int number) {
    foods.NewFood();
    for (const char* field : {"txtFoodName", "txtCals"})
        foods.findChild<QLineEdit*>(QString::fromLatin1(field))->setText(QString::number(number));
    foods.findChild<ucButton*>(QStringLiteral("cmdSave"))->Activate();
    Acknowledge("custom", number);
}

/// The number is both the name of the recipe and the quantity of its only ingredient.
void MakeRecipe(frmRecipeManager& recipes, int number) {
    const auto press = [&](const char* button) {
        recipes.findChild<ucButton*>(QString::fromLatin1(button))->Activate();
    };
    press("cmdNew");
    recipes.findChild<QLineEdit*>(QStringLiteral("txtName"))->setText(QString::number(number));
    recipes.AddFood(ScaledFood::FromCatalogue(23508, QStringLiteral("A"), number));
    Acknowledge("ingredient", number);
    recipes.findChild<QLineEdit*>(QStringLiteral("txtServing"))->setText(QStringLiteral("1 cup"));
    press("cmdEdit");
    Acknowledge("recipe", number);
}
} // namespace

int main(int argc, char** argv) {
    if (argc < 3)
        return 2;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    OpenFolder(QString::fromLocal8Bit(argv[1]));
    frmDay day;
    day.BeforeShow();
    day.show();
    day.DoWinInit();
    QApplication::setActiveWindow(&day);
    frmFoodList foods;
    frmRecipeManager recipes;
    recipes.DoWinInit();
    for (int number = QByteArray(argv[2]).toInt();; ++number) {
        LogFood(day, number);
        LogWeight(day, number);
        MakeCustomFood(foods, number);
        MakeRecipe(recipes, number);
    }
}
