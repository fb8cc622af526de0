#include "disk/WritingRoutines.h"

#include "foods/CustomFoods.h"
#include "foods/ScaledFood.h"
#include "foods/delivery/DeliveredDatabases.h"
#include "foods/delivery/TsvTable.h"
#include "intake/DayLog.h"
#include "intake/LoggedEntries.h"
#include "model/Profiles.h"
#include "recipes/RecipeBook.h"
#include "recipes/RecipeTexts.h"
#include "records/Restoring.h"
#include "records/SnapshotMaking.h"
#include "records/Snapshots.h"
#include "records/Undo.h"
#include "records/document/RecordsDocument.h"
#include "records/recipefiles/RecipeImport.h"
#include "runtime/AppState.h"
#include "store/VersionOne.h"
#include "support/Places.h"
#include "support/SamplePerson.h"

#include <QDir>
#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

#include <gtest/gtest.h>

namespace {
using Ground = RoutineGround;

const QDate Day(2026, 11, 20);
const QDate NextDay(2026, 11, 21);
constexpr qint32 StockFood = 16096;
constexpr qint32 OwnFood = 23509;
constexpr qint32 FirstRecipe = 1;

constexpr auto Document = R"({"format":"halvane-records","version":1,
 "nutrients":[{"name":"Calories","unit":"kcal"}],
 "profiles":[{"key":1,"name":"Anna"}],
 "foods":[{"name":"Bread","amounts":[250]},{"name":"Jam","amounts":[40]}],
 "recipes":[{"name":"Toast","ingredients":[{"food":"Bread"},{"food":"Jam"}]}],
 "weights":[{"profile":1,"date":"2026-03-02","weight":151}],
 "log":[{"profile":1,"date":"2026-03-02","food":"Bread","amounts":[250]},
        {"profile":1,"date":"2026-03-03","food":"Jam","amounts":[40]}]})";

constexpr auto Soup = R"({"@type":"Recipe","name":"Soup","recipeYield":"2",
 "recipeIngredient":["1 cup butter","salt to taste"],"recipeInstructions":"Boil."})";

/// Statements on users.mdb, which is `main`, and foods.mdb, which is `f`.
void Change(const Ground& ground, const char* sql) {
    SQLite::Database database(ground.records.Users().toStdString(), SQLite::OPEN_READWRITE);
    database.exec("PRAGMA synchronous = OFF; ATTACH '" + ground.records.Foods().toStdString() +
                  "' AS f");
    database.exec(sql);
}

void WriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

/// The tables that the records are delivered from, but with few foods.
void WriteTables(const QString& folder, qsizetype first, qsizetype count) {
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString intakes = QStringLiteral("/reference-intakes.tsv");
    ASSERT_TRUE(QFile::copy(Places::Source("/data" + intakes), folder + intakes));
    const TsvTable all = TsvTable::Read(Places::Source(QStringLiteral("/data/foods.tsv")));
    TsvTable few(all.Columns());
    for (qsizetype row = first; row < first + count; ++row)
        few.Append(all.Rows()[row]);
    few.Append(all.Rows().last()); // own foods follow it
    few.Write(folder + "/foods.tsv");
}

CustomFood Food(const char* name) {
    CustomFood food{QLatin1String(name), QStringLiteral("1 bowl"), {}};
    food.amounts.Set(Nutrient::Calories, 333);
    return food;
}

ScaledFood Butter() {
    return ScaledFood::FromCatalogue(StockFood, QStringLiteral("A"), 2);
}

RecipeTexts Texts(const char* name) {
    RecipeTexts texts = RecipeTexts::OfNewRecipe();
    texts[RecipeField::Name] = QLatin1String(name);
    texts[RecipeField::Serving] = QStringLiteral("1 slice");
    texts[RecipeField::Instructions] = QStringLiteral("Bake. ").repeated(1000);
    return texts;
}

void LogFood(const Ground&) {
    DayLog::AddFood(Butter(), QStringLiteral("Lunch"), Day);
}

/// As a recipe of the exchange comes in.
void KeepRecipe(const Ground&) {
    const qint32 key = RecipeBook::KeepRecipe(Texts("Cake").Values());
    const QVariantList values = RecipeBook::ReadIngredients(FirstRecipe).rows.front().mid(1, 33);
    RecipeBook::KeepIngredients(key, 3, [&](int) { return values; });
}

void ImportRecords(const Ground& ground) {
    RecordsDocument::Import(ground.records, ground.files + "/records.json", {},
                            [](qint64, qint64) {});
}

void ImportRecipe(const Ground& ground) {
    RecipeImport::Options options;
    options.files << ground.files + "/soup.json";
    options.accept = true;
    RecipeImport::Run(ground.records, options);
}

void UpdateStock(const Ground& ground) {
    DeliveredDatabases(ground.files + "/new").Update(ground.records.Path());
}

void BecomeOlder(const Ground& ground) {
    for (const RecordsFile& file : RecordsFiles)
        ASSERT_TRUE(QFile::remove(ground.records.File(file.name)));
    VersionOne::MakeUsers(ground.records.Users());
    VersionOne::MakeFoods(ground.records.Foods());
}

void MakeSnapshot(const Ground& ground) {
    SnapshotMaking(ground.records, Snapshots(ground.records).Place())
        .Make(SnapshotKind::Manual, QStringLiteral("by hand"));
}

void ChangeUsersSinceSnapshot(const Ground& ground) {
    MakeSnapshot(ground);
    Change(ground, "DELETE FROM USER_FOODS; UPDATE profiles SET UserName = 'Bert'");
}

void ChangeBothSinceSnapshot(const Ground& ground) {
    ChangeUsersSinceSnapshot(ground);
    Change(ground, "UPDATE f.FOODS SET FoodName = 'Stew' WHERE ID > 23508");
}

void Restore(const Ground& ground) {
    const Snapshot snapshot = Snapshots(ground.records).Find(QStringLiteral("latest"));
    Restoring(ground.records).Put(snapshot, {}, QStringLiteral("before a restore"));
}

void TakeBack(const Ground& ground) {
    Undo::Last(ground.records);
}

void AddAutomaticTargets(const Ground&) {
    App().AppInfo.AUTOUPDATERDI = true;
}

const WritingRoutine Routines[] = {
    {"log a food", true, 1, {}, LogFood},
    {"copy a day",
     true,
     3,
     {},
     [](const Ground&) { DayLog::CopyFoods(LoggedEntries::Of(Day), NextDay); }},
    {"remove a logged food", true, 1, {}, [](const Ground&) { DayLog::RemoveFood(2); }},
    {"clear a day", true, 3, {}, [](const Ground&) { DayLog::ClearFoods(Day); }},
    {"enter a weight", true, 1, {}, [](const Ground&) { DayLog::EnterWeight(Day, 180); }},
    {"enter a weight with automatic targets", true, 2, AddAutomaticTargets,
     [](const Ground&) { DayLog::EnterWeight(Day, 180); }},
    {"change a weight", true, 1, {}, [](const Ground&) { DayLog::EnterWeight(NextDay, 180); }},
    {"clear a weight", true, 1, {}, [](const Ground&) { DayLog::SetWeight(NextDay, 0); }},
    {"make an own food",
     true,
     2,
     {},
     [](const Ground&) { CustomFoods::Save(CustomFoods::Append(), Food("Muesli")); }},
    {"change an own food",
     true,
     1,
     {},
     [](const Ground&) { CustomFoods::Save(OwnFood, Food("Groats")); }},
    {"delete an own food", true, 1, {}, [](const Ground&) { CustomFoods::Delete(OwnFood); }},
    {"make a recipe",
     true,
     2,
     {},
     [](const Ground&) { RecipeBook::SaveRecipe(RecipeBook::AddRecipe(), Texts("Tart")); }},
    {"change a recipe",
     true,
     1,
     {},
     [](const Ground&) { RecipeBook::SaveRecipe(FirstRecipe, Texts("Gruel")); }},
    {"delete a recipe", true, 2, {}, [](const Ground&) { RecipeBook::DeleteRecipe(FirstRecipe); }},
    {"add an ingredient",
     true,
     1,
     {},
     [](const Ground&) { RecipeBook::AddIngredient(FirstRecipe, Butter()); }},
    {"remove an ingredient", true, 1, {}, [](const Ground&) { RecipeBook::RemoveIngredient(1); }},
    {"import a recipe of the exchange", true, 4, {}, KeepRecipe},
    {"make a profile", true, 1, {}, [](const Ground&) { Profiles::Append(SamplePerson("Carl")); }},
    {"change a profile",
     true,
     1,
     {},
     [](const Ground&) { Profiles::Change(1, SamplePerson("Dora")); }},
    {"import records", false, 1, {}, ImportRecords},
    {"import recipes of a file", false, 1, {}, ImportRecipe},
    {"update files of the first version", false, 0, BecomeOlder, WritingRoutines::OpenAsWindow},
    {"update the stock foods", false, 1, {}, UpdateStock},
    {"make a snapshot", false, 1, {}, MakeSnapshot},
    {"restore one file", false, 2, ChangeUsersSinceSnapshot, Restore},
    {"restore both files", false, 2, ChangeBothSinceSnapshot, Restore},
    {"take an import back", false, 2, ImportRecords, TakeBack},
};
} // namespace

std::span<const WritingRoutine> WritingRoutines::All() {
    return Routines;
}

void WritingRoutines::MakeGround(const Ground& ground) {
    WriteTables(ground.files + "/old", 0, 20);
    WriteTables(ground.files + "/new", 5, 30);
    WriteFile(ground.files + "/records.json", Document);
    WriteFile(ground.files + "/soup.json", Soup);
    DeliveredDatabases(ground.files + "/old").Build(ground.records.Path());
    OpenAsWindow(ground);
    User::Current() = Profiles::Append(SamplePerson("Anna"));
    for (const char* meal : {"Breakfast", "Lunch", "Dinner"})
        DayLog::AddFood(Butter(), QLatin1String(meal), Day);
    DayLog::SetWeight(NextDay, 190);
    CustomFoods::Save(CustomFoods::Append(), Food("Porridge"));
    RecipeBook::SaveRecipe(RecipeBook::AddRecipe(), Texts("Pie"));
    for (int i = 0; i < 2; ++i)
        RecipeBook::AddIngredient(FirstRecipe, Butter());
    UserDB().Close();
    FoodDB().Close();
}

void WritingRoutines::OpenAsWindow(const Ground& ground) {
    UserDB().Open(ground.records.Users(), DatabaseKind::Users);
    FoodDB().Open(ground.records.Foods(), DatabaseKind::Foods);
    if (const auto first = Profiles::First())
        User::Current() = *first;
}
