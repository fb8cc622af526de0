#include "durability/WindowWork.h"

#include "core/Application.h"
#include "core/Flow.h"
#include "core/Navigation.h"
#include "core/Screens.h"
#include "core/frmHOME.h"
#include "model/User.h"
#include "model/ui/frmProfile.h"
#include "runtime/AppPath.h"
#include "runtime/AppState.h"
#include "runtime/ScreenTable.h"
#include "runtime/Seams.h"
#include "runtime/Server.h"
#include "support/HalvaneTest.h"
#include "toolkit/ListBox.h"
#include "toolkit/ucAte.h"

#include <QLineEdit>
#include <QTest>

namespace {

const QDate FirstDay(2000, 1, 1);
constexpr int LaterDays = 20000; ///< days that are cleared are beyond those that keep their foods

QWidget* Show(const ScreenRow& screen) {
    return qobject_cast<QWidget*>(ShowScreen(QLatin1String(screen.name)));
}

void Press(QWidget* root, const char* button) {
    Click(Find(root, QLatin1String(button)));
}

void Type(QWidget* root, const char* field, const QString& text) {
    auto* entry = Find<QLineEdit>(root, QLatin1String(field));
    entry->clear();
    QTest::keyClicks(entry, text);
}

void ChooseRecipe(QWidget* recipes, const QString& name) {
    auto* list = Find<ListBox>(recipes, QStringLiteral("lsRecipes"));
    for (int line = 0; line < list->ListCount(); ++line)
        if (list->Text(line) == name)
            return list->SetListIndex(line);
    qFatal("the recipe %s is not listed", qPrintable(name));
}

/// Removes the last food of the list.
void PressLastTrash(QWidget* root) {
    QList<ucAte*> rows = root->findChildren<ucAte*>();
    rows.removeIf([](const ucAte* row) { return !row->isVisible(); });
    if (rows.isEmpty())
        qFatal("no food is listed");
    Press(rows.last(), "imgTrash");
}

} // namespace

WindowWork::WindowWork(Application& application, const QString& folder, Acknowledge acknowledge)
    : application_(application)
    , acknowledge_(std::move(acknowledge)) {
    SetApplicationPath(folder);
    Server::SetAddress(exchange_.Address());
    RegisterScreens(TheNavigation());
    TheNavigation().InstallSeams();
    TheSeams().ShowAlert = [](const QString&, QObject*, bool) { return true; };
}

void WindowWork::GoOnFrom(int number) {
    number_ = number;
    Start();
    for (;; ++number_)
        Round();
}

void WindowWork::Start() {
    WithModal([](QWidget* splash) { splash->close(); },
              [this] { Flow::Main(application_.Instance()); });
    if (!Flow::HasWindow())
        qFatal("the program does not start");
}

void WindowWork::Round() {
    LogFoods();
    RemoveFood();
    ClearDay();
    Weigh();
    MakeFood();
    CorrectFood();
    DeleteFood();
    MakeRecipe();
    RemoveIngredient();
    DeleteRecipe();
    ImportRecipe();
    EditProfile();
}

QWidget* WindowWork::Day() {
    App().CurrentDate = FirstDay.addDays(number_);
    return Show(Screens::Day);
}

void WindowWork::AddOats(QWidget* search, double quantity) const {
    Type(search, "txtSearchString", QStringLiteral("Oats"));
    Press(search, "cmdGo");
    QWidget* row = Find(search, QStringLiteral("ucFood1"));
    Type(row, "txtQTY_A", QString::number(quantity));
    Press(row, "cmdEAT_a");
}

void WindowWork::LogFoods() {
    QWidget* day = Day();
    for (const char* meal : {"lblLunch", "lblSnack"})
        WithModal(
            [this](QWidget* search) {
                AddOats(search, Tenths());
                Press(search, "cmdDone");
            },
            [=] { Press(day, meal); });
    Done("food");
}

void WindowWork::RemoveFood() {
    PressLastTrash(Day());
    Done("removed");
}

void WindowWork::ClearDay() {
    App().CurrentDate = FirstDay.addDays(LaterDays + number_);
    QWidget* day = Show(Screens::Day);
    for (const char* meal : {"lblBreakfast", "lblDinner"})
        WithModal([this](QWidget* search) { AddOats(search, Tenths()); },
                  [=] { Press(day, meal); });
    Press(day, "cmdClear");
    Done("cleared");
}

/// A typed weight is saved at the latest when the screen goes.
void WindowWork::Weigh() {
    Type(Day(), "txtWeight", QString::number(number_));
    Show(Screens::Main);
    Done("weight");
}

void WindowWork::SaveFood(const QString& name) {
    QWidget* foods = Show(Screens::FoodList);
    Press(foods, "cmdNewBut");
    Type(foods, "txtFoodName", name);
    Type(foods, "txtCals", QString::number(number_));
    Press(foods, "cmdSave");
}

void WindowWork::MakeFood() {
    SaveFood(QString::number(number_));
    Done("custom");
}

void WindowWork::CorrectFood() {
    QWidget* foods = Show(Screens::FoodList);
    Type(foods, "txtServing", QStringLiteral("1 bowl"));
    Press(foods, "cmdSave");
    Done("corrected");
}

void WindowWork::DeleteFood() {
    SaveFood("Old " + QString::number(number_));
    Press(Show(Screens::FoodList), "cmdDelete");
    Done("custom-deleted");
}

/// The second ingredient will be removed.
void WindowWork::SaveRecipe(const QString& name) {
    QWidget* recipes = Show(Screens::RecipeManager);
    Press(recipes, "cmdNew");
    Type(recipes, "txtName", name);
    WithModal(
        [this](QWidget* search) {
            for (const double quantity : {Tenths(), 50 + Tenths()})
                AddOats(search, quantity);
        },
        [=] { Press(recipes, "cmdIngreds"); });
    Type(recipes, "txtServing", QStringLiteral("1 cup"));
    Press(recipes, "cmdEdit");
}

void WindowWork::MakeRecipe() {
    SaveRecipe(QString::number(number_));
    Done("ingredient");
    Done("recipe");
}

void WindowWork::RemoveIngredient() {
    QWidget* recipes = Show(Screens::RecipeManager);
    ChooseRecipe(recipes, QString::number(number_));
    Press(recipes, "cmdEdit");
    PressLastTrash(recipes);
    Press(recipes, "cmdEdit");
    Done("ingredient-removed");
}

/// A recipe goes with its first ingredient alone; what is left of the others is no promise.
void WindowWork::DeleteRecipe() {
    QWidget* recipes = Show(Screens::RecipeManager);
    const QString name = "Old " + QString::number(number_);
    Press(recipes, "cmdNew");
    Type(recipes, "txtName", name);
    Type(recipes, "txtServing", QStringLiteral("1 cup"));
    Press(recipes, "cmdEdit");
    ChooseRecipe(recipes, name);
    Press(recipes, "cmdDelete");
    Done("recipe-deleted");
}

void WindowWork::ImportRecipe() {
    QJsonObject soup = SoupRecipe();
    soup[QStringLiteral("RecipeName")] = QString::number(number_);
    TellSoup(exchange_);
    exchange_.Tell(RecipePath(), 200, Json(soup));
    WithModal(
        [](QWidget* dialog) {
            Type(dialog, "txtRecID", QString::number(Soup));
            Press(dialog, "cmdGo");
        },
        [] { Press(Show(Screens::RecipeManager), "cmdImport"); });
    Done("imported");
}

void WindowWork::EditProfile() {
    frmProfile::EditUser(User::Current().UID);
    QWidget* profile = TheNavigation().Front();
    Type(profile, "txtUserName", QString::number(number_));
    Press(profile, "cmdSave");
    Done("profile");
}
