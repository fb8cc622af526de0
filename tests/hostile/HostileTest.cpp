#include "hostile/HostileTest.h"

#include "analysis/ui/ViewButtons.h"
#include "core/Navigation.h"
#include "core/Screens.h"
#include "foods/ScaledFood.h"
#include "foods/ui/frmFoodSearch.h"
#include "foods/ui/frmNutInfo.h"
#include "foods/ui/ucSearchResults.h"
#include "model/User.h"
#include "model/ui/frmProfile.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/ScreenTable.h"
#include "runtime/Seams.h"
#include "store/Connection.h"
#include "toolkit/ListBox.h"

#include <QLineEdit>

namespace {
constexpr int ReportViews = 4;

const HostileTest::Ground All[] = {
    {"USER_FOODS", UserDB, {{"UID", "1"}, {"Meal", "'Lunch'"}, {"UDate", "'2026-11-21'"}}},
    {"USER_FOODS", UserDB, {{"UID", "1"}}},
    {"USER_WEIGHTS", UserDB, {{"UID", "1"}, {"UDate", "'2026-11-21'"}}},
    {"USER_WEIGHTS", UserDB, {{"UID", "1"}}},
    {"Recipes", UserDB, {{"RecipeName", "'Soup of many'"}}},
    {"Recipes", UserDB, {}},
    {"Ingredients", UserDB, {{"RecipeID", "1"}}},
    {"FOODS", FoodDB, {{"FoodName", "'Soup of many'"}, {"Serv_Desc_A", "'1 cup'"}}},
    {"FOODS", FoodDB, {}},
};
} // namespace

std::span<const HostileTest::Ground> HostileTest::Grounds() {
    return All;
}

void HostileTest::SetUp() {
    CoreTest::SetUp();
    Clock::SetToday(QDate(2026, 11, 21));
    App().CurrentDate = Clock::Today();
    TheSeams().ShowAlert = [](const QString&, QObject*, bool) { return true; };
}

void HostileTest::ShowHome() {
    RegisterScreens(TheNavigation());
    ::ShowHome();
    Activate(Window(QStringLiteral("frmHOME")));
}

ScreenForm* HostileTest::Show(const char* name) {
    auto* screen = qobject_cast<ScreenForm*>(::ShowScreen(QLatin1String(name)));
    RunDeferredDeletes();
    Grab(screen);
    return screen;
}

void HostileTest::ShowReport() {
    ScreenForm* report = Show(Screens::Report.name);
    for (int view = 0; view < ReportViews; ++view) {
        Q_EMIT report->findChild<ViewButtons*>()->Asked(view);
        Grab(report);
    }
}

void HostileTest::ShowLines(const char* name, const char* list) {
    ScreenForm* screen = Show(name);
    auto* lines = Find<ListBox>(screen, QLatin1String(list));
    for (int i = 0; i < lines->ListCount(); ++i) {
        lines->SetListIndex(i);
        Grab(screen);
    }
}

void HostileTest::ShowProfile() {
    frmProfile::EditUser(User::Current().UID);
    RunDeferredDeletes();
    Grab(TheNavigation().Front());
}

void HostileTest::Search() {
    frmFoodSearch dialog;
    dialog.show();
    Find<QLineEdit>(&dialog, QStringLiteral("txtSearchString"))->setText(QStringLiteral("o"));
    dialog.ucSearchResults1()->SearchFoodsDB();
    dialog.ucSearchResults1()->ShowResults();
    Grab(&dialog);
}

void HostileTest::ShowFacts(const ScaledFood& item) {
    frmNutInfo facts;
    WithModal([](QWidget* shown) { Grab(shown); }, [&] { facts.showFood(item); });
}

void HostileTest::ShowAll() {
    Show(Screens::Main.name);
    Show(Screens::Day.name);
    ShowReport();
    ShowLines(Screens::FoodList.name, "FoodList");
    ShowLines(Screens::RecipeManager.name, "lsRecipes");
    ShowProfile();
    Search();
}

void HostileTest::ShowAllFacts() {
    const QString keys = QStringLiteral(" WHERE abs(%1 / 2) < 1 << 30"); // those of 32 bits
    bool first = false; // the two servings of a row in turn
    for (const QVariantList& row :
         Rows(FoodDB(), "SELECT ID FROM FOODS" + keys.arg(QStringLiteral("ID")))) {
        first = !first;
        const QString serving = first ? QStringLiteral("A") : QStringLiteral("B");
        ShowFacts(ScaledFood::FromCatalogue(row.first().toInt(), serving, 1));
    }
    for (const QVariantList& row :
         Rows(UserDB(), "SELECT RecipeID FROM Recipes" + keys.arg(QStringLiteral("RecipeID"))))
        ShowFacts(ScaledFood::FromRecipe(row.first().toInt(), 1));
}

QMap<QString, qsizetype> HostileTest::Counts() {
    QMap<QString, qsizetype> counts;
    for (const auto& [table, database, sound] : All)
        counts[QLatin1String(table)] =
            Rows(database(), "SELECT 1 FROM " + QLatin1String(table)).size();
    return counts;
}

bool HostileTest::RemoveOne(const QString& table, const Button& button) {
    QWidget* remove = button();
    if (remove == nullptr)
        return false;
    QMap<QString, qsizetype> expected = Counts();
    --expected[table];
    Click(remove);
    EXPECT_EQ(Counts(), expected);
    return true;
}

QWidget* HostileTest::Trash(const ScreenForm* screen) {
    const auto* line = screen->findChild<QWidget*>(QStringLiteral("ucAte1"));
    return line ? line->findChild<QWidget*>(QStringLiteral("imgTrash")) : nullptr;
}

QWidget* HostileTest::DeleteOf(const ScreenForm* screen, const char* list) {
    const auto* lines = Find<ListBox>(screen, QLatin1String(list));
    return lines->ListCount() > 0 ? Find(screen, QStringLiteral("cmdDelete")) : nullptr;
}
