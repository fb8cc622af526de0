#include "core/CoreTest.h"

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
#include "support/HostileRows.h"
#include "toolkit/ListBox.h"

#include <QLineEdit>
#include <QRandomGenerator>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr int ReportViews = 4;
constexpr qint32 OwnFood = 23509;

/// The tables whose rows stand in lists or add up to figures, and by what a screen finds a row.
struct Ground {
    const char* table;
    Connection& (*database)();
    HostileRows::Row sound;
};
const Ground Grounds[] = {
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

/// All screens over rows that another tool has written.
class HostileRowsTest : public CoreTest, public ::testing::WithParamInterface<size_t> {
protected:
    void SetUp() override {
        CoreTest::SetUp();
        Clock::SetToday(QDate(2026, 11, 21));
        OpenEmptyDatabases();
        AddUser();
        App().CurrentDate = Clock::Today();
        App().AppInfo.AUTOUPDATERDI = true;
        TheSeams().ShowAlert = [](const QString&, QObject*, bool) { return true; };
        FoodDB().Raw().exec("INSERT INTO FOODS (ID, FoodName, Serv_Desc_A, Calories) VALUES "
                            "(23508, 'Stock', '1 cup', 10), (23509, 'Mine', '1 cup', 20)");
        UserDB().Raw().exec(
            "INSERT INTO Recipes (RecipeName, ServingName, RecipeYield) VALUES ('Pie', '1', 2);"
            "INSERT INTO Ingredients (RecipeID, FoodName, QTY, Calories) VALUES (1, 'Oat', 1, 5);"
            "INSERT INTO USER_WEIGHTS VALUES (1, '2026-11-20', 170);"
            "INSERT INTO USER_FOODS (UID, FoodName, Meal, UDate, QTY, Calories) VALUES "
            "(1, 'Oats', 'Lunch', '2026-11-20', 1, 100)");
        RegisterScreens(TheNavigation());
        ::ShowHome();
        Activate(Window(QStringLiteral("frmHOME")));
    }

    ScreenForm* Show(const char* name) {
        auto* screen = qobject_cast<ScreenForm*>(::ShowScreen(QLatin1String(name)));
        RunDeferredDeletes();
        Grab(screen);
        return screen;
    }
    void ShowDay() { Show(Screens::Day.name); }
    void ShowReport() {
        ScreenForm* report = Show(Screens::Report.name);
        for (int view = 0; view < ReportViews; ++view) {
            Q_EMIT report->findChild<ViewButtons*>()->Asked(view);
            Grab(report);
        }
    }
    void ShowLines(const char* name, const char* list) {
        ScreenForm* screen = Show(name);
        auto* lines = Find<ListBox>(screen, QLatin1String(list));
        for (int i = 0; i < lines->ListCount(); ++i) {
            lines->SetListIndex(i);
            Grab(screen);
        }
    }
    void ShowProfile() {
        frmProfile::EditUser(User::Current().UID);
        RunDeferredDeletes();
        Grab(TheNavigation().Front());
    }
    void Search() {
        frmFoodSearch dialog;
        dialog.show();
        Find<QLineEdit>(&dialog, QStringLiteral("txtSearchString"))->setText(QStringLiteral("o"));
        dialog.ucSearchResults1()->SearchFoodsDB();
        dialog.ucSearchResults1()->ShowResults();
        Grab(&dialog);
    }
    static void ShowFacts(const ScaledFood& item) {
        frmNutInfo facts;
        WithModal([](QWidget* shown) { Grab(shown); }, [&] { facts.showFood(item); });
    }
    void ShowAll() {
        Show(Screens::Main.name);
        ShowDay();
        ShowReport();
        ShowLines(Screens::FoodList.name, "FoodList");
        ShowLines(Screens::RecipeManager.name, "lsRecipes");
        ShowProfile();
        Search();
    }
    void ShowAllFacts() {
        bool first = false; // the two servings of a row in turn
        for (const QVariantList& row : Rows(FoodDB(), QStringLiteral("SELECT ID FROM FOODS"))) {
            first = !first;
            const QString serving = first ? QStringLiteral("A") : QStringLiteral("B");
            ShowFacts(ScaledFood::FromCatalogue(row.first().toInt(), serving, 1));
        }
        for (const QVariantList& row :
             Rows(UserDB(), QStringLiteral("SELECT RecipeID FROM Recipes")))
            ShowFacts(ScaledFood::FromRecipe(row.first().toInt(), 1));
    }

    /// Rows that hold one value everywhere, and rows of any values.
    static void InsertSome(const HostileRows& rows) {
        QRandomGenerator random{1};
        for (const char* value : HostileRows::Values()) {
            rows.Insert(rows.With(value).last());
            rows.Insert(rows.Random(random));
        }
    }

    /// The rows of both files, by table.
    QMap<QString, qsizetype> Counts() {
        QMap<QString, qsizetype> counts;
        for (const auto& [table, database, sound] : Grounds)
            counts[QLatin1String(table)] =
                Rows(database(), "SELECT 1 FROM " + QLatin1String(table)).size();
        return counts;
    }
    /// Presses until nothing is left to press; each press takes one row of that table and no other.
    void RemoveAll(const QString& table, const std::function<QWidget*()>& button) {
        while (QWidget* remove = button()) {
            QMap<QString, qsizetype> expected = Counts();
            --expected[table];
            Click(remove);
            ASSERT_EQ(Counts(), expected);
        }
    }
    /// The trash can of the first line.
    static QWidget* Trash(const ScreenForm* screen) {
        const auto* line = screen->findChild<QWidget*>(QStringLiteral("ucAte1"));
        return line ? line->findChild<QWidget*>(QStringLiteral("imgTrash")) : nullptr;
    }
    static QWidget* DeleteOf(const ScreenForm* screen, const char* list) {
        const auto* lines = Find<ListBox>(screen, QLatin1String(list));
        return lines->ListCount() > 0 ? Find(screen, QStringLiteral("cmdDelete")) : nullptr;
    }
};

INSTANTIATE_TEST_SUITE_P(EveryTable, HostileRowsTest,
                         ::testing::Range<size_t>(0, std::size(Grounds)));

TEST_P(HostileRowsTest, EveryScreenOpensWhateverStandsInAColumn) {
    const Ground& ground = Grounds[GetParam()];
    const HostileRows rows(ground.database().Raw(), ground.table, ground.sound);
    for (const char* value : HostileRows::Values()) {
        ground.database().Raw().exec("SAVEPOINT before");
        rows.Insert(rows.With(value));
        EXPECT_NO_THROW(ShowAll()) << ground.table << ' ' << value;
        EXPECT_NO_THROW(ShowAllFacts()) << ground.table << ' ' << value;
        ground.database().Raw().exec("ROLLBACK TO before; RELEASE before");
    }
}

TEST_P(HostileRowsTest, EveryScreenOpensOverRowsWithoutAnySense) {
    QRandomGenerator random{unsigned(GetParam())};
    const Ground& ground = Grounds[GetParam()];
    const HostileRows rows(ground.database().Raw(), ground.table, ground.sound);
    for (int i = 0; i < 40; ++i)
        rows.Insert(rows.Random(random));
    EXPECT_NO_THROW(ShowAll()) << ground.table;
    EXPECT_NO_THROW(ShowAllFacts()) << ground.table;
}

TEST_F(HostileRowsTest, EveryLineOfADayCanBeRemoved) {
    const HostileRows rows(UserDB().Raw(), "USER_FOODS", Grounds[0].sound);
    InsertSome(rows);
    const ScreenForm* day = Show(Screens::Day.name);
    RemoveAll(QStringLiteral("USER_FOODS"), [&] { return Trash(day); });
    EXPECT_EQ(Users(QStringLiteral("SELECT count(*) FROM USER_FOODS")), 1) << "of another day";
}

TEST_F(HostileRowsTest, EveryIngredientCanBeRemoved) {
    const HostileRows rows(UserDB().Raw(), "Ingredients", {{"RecipeID", "1"}});
    InsertSome(rows);
    const ScreenForm* recipes = Show(Screens::RecipeManager.name);
    RemoveAll(QStringLiteral("Ingredients"), [&] { return Trash(recipes); });
    EXPECT_EQ(Users(QStringLiteral("SELECT count(*) FROM Ingredients")), 0);
}

TEST_F(HostileRowsTest, EveryOwnFoodCanBeDeleted) {
    const HostileRows rows(FoodDB().Raw(), "FOODS", {});
    InsertSome(rows);
    const ScreenForm* foods = Show(Screens::FoodList.name);
    RemoveAll(QStringLiteral("FOODS"), [&] { return DeleteOf(foods, "FoodList"); });
    EXPECT_EQ(Foods(QStringLiteral("SELECT max(ID) FROM FOODS")), 23508);
}

TEST_F(HostileRowsTest, EveryRecipeCanBeDeleted) {
    UserDB().Raw().exec("DELETE FROM Ingredients");
    const HostileRows rows(UserDB().Raw(), "Recipes", {});
    InsertSome(rows);
    const ScreenForm* recipes = Show(Screens::RecipeManager.name);
    RemoveAll(QStringLiteral("Recipes"), [&] { return DeleteOf(recipes, "lsRecipes"); });
    EXPECT_EQ(Users(QStringLiteral("SELECT count(*) FROM Recipes")), 0);
}

TEST_F(HostileRowsTest, AWeightOfNoSenseCanBeReplacedAndTakenBack) {
    for (const char* value : HostileRows::Values()) {
        UserDB().Raw().exec("DELETE FROM USER_WEIGHTS");
        HostileRows(UserDB().Raw(), "USER_WEIGHTS", {{"UID", "1"}})
            .Insert({{"UID", "1"}, {"UDate", "'2026-11-21'"}, {"Weight", value}});
        ScreenForm* day = Show(Screens::Day.name);
        auto* weight = Find<QLineEdit>(day, QStringLiteral("txtWeight"));
        weight->setFocus();
        weight->setText(QStringLiteral("180"));
        Find(day, QStringLiteral("cmdCal"))->setFocus();
        EXPECT_EQ(Users(QStringLiteral("SELECT Weight FROM USER_WEIGHTS")), 180) << value;
        weight->setFocus();
        weight->clear();
        Find(day, QStringLiteral("cmdCal"))->setFocus();
        EXPECT_EQ(Users(QStringLiteral("SELECT Weight FROM USER_WEIGHTS")), 0) << value;
        EXPECT_EQ(Users(QStringLiteral("SELECT count(*) FROM USER_WEIGHTS")), 1) << value;
    }
}

TEST_F(HostileRowsTest, EveryScreenOpensForAProfileOfNoSense) {
    const HostileRows rows(UserDB().Raw(), "profiles", {});
    for (const char* value : HostileRows::Values())
        for (const HostileRows::Row& row : rows.With(value)) {
            rows.Insert(row);
            User::Current().UID = qint32(UserDB().Raw().getLastInsertRowid());
            EXPECT_NO_THROW(User::Current().GetUserProfile(User::Current().UID)) << value;
            EXPECT_NO_THROW(ShowProfile()) << value;
            if (row == rows.With(value).last()) {
                EXPECT_NO_THROW(ShowAll()) << value;
                EXPECT_NO_THROW(ShowAllFacts()) << value;
            }
        }
}
