#include "StoreTest.h"
#include "VersionOne.h"

#include "store/Schema.h"

#include <QDir>

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {
int stepsLeft = 0;

int KillInTime(void*) {
    if (--stepsLeft == 0)
        kill(getpid(), SIGKILL);
    return 0;
}

/// Watches every database that is opened afterwards.
int Watch(sqlite3* opened, const char**, const sqlite3_api_routines*) {
    constexpr int instructions = 50;
    sqlite3_progress_handler(opened, instructions, KillInTime, nullptr);
    return SQLITE_OK;
}
} // namespace

class OlderFilesTest : public StoreTest {
protected:
    void SetUp() override { ASSERT_TRUE(folder_.isValid()); }

    void OpenUsers() { users_.Open(UsersFile(), DatabaseKind::Users); }
    void OpenFoods() { foods_.Open(FoodsFile(), DatabaseKind::Foods); }

    /// All 31 amounts of all rows but the first, by name; the first row has none.
    static void ExpectAmounts(SQLite::Database& file, const std::string& table) {
        SQLite::Statement rows(file, "SELECT * FROM " + table + " ORDER BY ID");
        ASSERT_TRUE(rows.executeStep());
        for (int i = 1; i <= 31; ++i)
            EXPECT_TRUE(rows.getColumn(i).isNull());
        while (rows.executeStep())
            for (int i = 1; i <= 31; ++i)
                ASSERT_EQ(rows.getColumn(i).getDouble(),
                          VersionOne::Amount(QString::fromLatin1(rows.getColumn(i).getName()),
                                             rows.getColumn(0).getInt()))
                    << rows.getColumn(i).getName();
    }

    /// All of a table as text, by the names of the columns.
    static QStringList Dump(Connection& connection, const QString& table) {
        const QString values =
            Column(connection, "SELECT 'quote(' || name || ')' FROM pragma_table_info('" + table +
                                   "') ORDER BY lower(name)")
                .join(" || ' ' || ");
        return Column(connection, "SELECT " + values + " FROM " + table + " ORDER BY rowid");
    }

    /// Opens the file in a process that is killed on the way. Returns whether it finished first.
    bool OpenAndDie(int after) {
        const pid_t child = fork();
        if (child == 0) {
            stepsLeft = after;
            sqlite3_auto_extension(reinterpret_cast<void (*)()>(Watch));
            OpenUsers();
            _exit(0);
        }
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        return WIFEXITED(status);
    }
};

TEST_F(OlderFilesTest, TheAmountsOfIngredientsStandUnderTheNamesThatTheyHad) {
    VersionOne::MakeUsers(UsersFile());
    OpenUsers();
    EXPECT_EQ(First(users_, "PRAGMA user_version"), Schema::Version);
    ExpectAmounts(users_.Raw(), "Ingredients");
    EXPECT_EQ(First(users_, "SELECT name FROM pragma_table_info('Ingredients') WHERE cid = 1"),
              "VitaminC");
}

TEST_F(OlderFilesTest, TheTextsKeysAndQuantitiesOfIngredientsStay) {
    VersionOne::MakeUsers(UsersFile());
    OpenUsers();
    EXPECT_EQ(Column(users_, "SELECT quote(ID) || quote(FoodName) || quote(Serving) || "
                             "quote(RecipeID) || quote(QTY) FROM Ingredients ORDER BY ID"),
              QStringList({"3'Food 3''1 cup'13.5", "4'Food 4'NULL14.5", "5'Food 5''1 cup'1NULL"}));
}

TEST_F(OlderFilesTest, KeysOfDeletedIngredientsAreNotGivenOutAgain) {
    VersionOne::MakeUsers(UsersFile());
    OpenUsers();
    Run(users_, "INSERT INTO Ingredients (FoodName) VALUES ('New')");
    EXPECT_EQ(First(users_, "SELECT ID FROM Ingredients WHERE FoodName = 'New'"), 90001);
    EXPECT_EQ(First(users_, "SELECT QTY FROM Ingredients WHERE FoodName = 'New'"), 1);
}

TEST_F(OlderFilesTest, AFileThatNeverHeldAnIngredientMoves) {
    VersionOne::MakeUsers(UsersFile(), 0);
    {
        SQLite::Database older(UsersFile().toStdString(), SQLite::OPEN_READWRITE);
        older.exec(
            "DELETE FROM Ingredients; DELETE FROM sqlite_sequence WHERE name = 'Ingredients'");
    }
    OpenUsers();
    Run(users_, "INSERT INTO Ingredients (FoodName) VALUES ('New')");
    EXPECT_EQ(First(users_, "SELECT ID FROM Ingredients"), 1);
}

TEST_F(OlderFilesTest, AllElseOfAUsersFileStaysAsItWas) {
    VersionOne::MakeUsers(UsersFile());
    const QStringList tables{"profiles", "RDI", "USER_FOODS", "USER_WEIGHTS", "Recipes"};
    const auto dumps = [&] {
        QList<QStringList> all;
        for (const QString& table : tables)
            all << Dump(users_, table);
        return all << Column(users_, "SELECT name || seq FROM sqlite_sequence ORDER BY name");
    };
    {
        // read as the first version would have left it
        SQLite::Database older(UsersFile().toStdString(), SQLite::OPEN_READWRITE);
        older.exec("PRAGMA user_version = " + std::to_string(Schema::Version));
    }
    OpenUsers();
    const QList<QStringList> before = dumps();
    Run(users_, "PRAGMA user_version = 1");
    users_.Close();
    OpenUsers();
    EXPECT_EQ(dumps(), before);
    EXPECT_EQ(before[0].size(), 1);
    EXPECT_EQ(before[2].size(), 1);
    EXPECT_EQ(before[4].size(), 2);
}

TEST_F(OlderFilesTest, StockAndOwnFoodsMoveWithTheirNamesServingsAndKeys) {
    VersionOne::MakeFoods(FoodsFile());
    OpenFoods();
    ExpectAmounts(foods_.Raw(), "FOODS");
    EXPECT_EQ(First(foods_, "SELECT name FROM pragma_table_info('FOODS') WHERE cid = 1"),
              "VitaminC");
    EXPECT_EQ(
        Column(
            foods_,
            "SELECT quote(ID) || quote(FoodName) || quote(Serv_Desc_A) || quote(Serv_Desc_B) || "
            "quote(Serv_GM_WT_A) || quote(Serv_GM_WT_B) || quote(NDB_No) FROM FOODS ORDER BY ID"),
        QStringList({"16096'Butter, salted''1 cup''1 tbsp'227.014.2'01001'",
                     "23508'Turtle, green, raw''3 oz'NULL85.0NULL'93600'",
                     "23509'Äpfel''s \"best\"''1 piece'NULL100.0NULLNULL",
                     "23511NULLNULLNULLNULLNULLNULL"}));
}

TEST_F(OlderFilesTest, AMovedFileHasTheTablesAndIndexesOfANewOne) {
    VersionOne::MakeUsers(UsersFile());
    VersionOne::MakeFoods(FoodsFile());
    OpenUsers();
    OpenFoods();
    Schema::Create(File("new-users.mdb"), DatabaseKind::Users);
    Schema::Create(File("new-foods.mdb"), DatabaseKind::Foods);
    Connection newUsers, newFoods;
    newUsers.Open(File("new-users.mdb"), DatabaseKind::Users);
    newFoods.Open(File("new-foods.mdb"), DatabaseKind::Foods);
    const QString all = "SELECT sql FROM sqlite_schema WHERE sql IS NOT NULL ORDER BY name";
    EXPECT_EQ(Column(users_, all), Column(newUsers, all));
    EXPECT_EQ(Column(foods_, all), Column(newFoods, all));
    EXPECT_EQ(First(users_, "SELECT count(*) FROM sqlite_temp_schema"), 0);
    EXPECT_EQ(First(users_, "PRAGMA integrity_check"), "ok");
    EXPECT_EQ(First(foods_, "PRAGMA integrity_check"), "ok");
}

TEST_F(OlderFilesTest, AKillLeavesAWhollyOldOrAWhollyNewFileThatTheNextStartOpens) {
    constexpr int rows = 1000;
    VersionOne::MakeUsers(File("older.mdb"), rows);
    int old = 0;
    for (int after = 1; !HasFailure(); after += 1 + after / 4) {
        SCOPED_TRACE(after);
        for (const char* journal : {"", "-wal", "-shm", "-journal"})
            QFile::remove(UsersFile() + journal);
        ASSERT_TRUE(QFile::copy(File("older.mdb"), UsersFile()));
        if (OpenAndDie(after))
            break;
        {
            SQLite::Database left(UsersFile().toStdString(), SQLite::OPEN_READWRITE);
            const bool isOld = left.execAndGet("PRAGMA user_version").getInt() == 1;
            old += isOld;
            EXPECT_EQ(
                left.execAndGet("SELECT name FROM pragma_table_info('Ingredients') WHERE cid = 1")
                    .getString(),
                isOld ? "Calories" : "VitaminC");
            EXPECT_EQ(left.execAndGet("SELECT count(*) FROM Ingredients").getInt(), rows);
            ExpectAmounts(left, "Ingredients");
        }
        OpenUsers();
        EXPECT_EQ(First(users_, "SELECT count(*) FROM Ingredients"), rows);
        EXPECT_EQ(First(users_, "SELECT seq FROM sqlite_sequence WHERE name = 'Ingredients'"),
                  90000);
        ExpectAmounts(users_.Raw(), "Ingredients");
        users_.Close();
    }
    EXPECT_GT(old, 15);
}
