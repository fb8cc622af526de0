#include "StoreTest.h"

#include "store/DatabaseCopy.h"
#include "store/Transaction.h"

#include <QDir>

#include <SQLiteCpp/SQLiteCpp.h>

/// Both files on one database, as a program opens them that changes both at once.
class TogetherTest : public StoreTest {
protected:
    void SetUp() override {
        StoreTest::SetUp();
        foods_.OpenTogether(FoodsFile(), DatabaseKind::Foods, users_);
    }
    /// One row in each file.
    void AddOneEach() {
        Add(users_, "USER_WEIGHTS", "Weight", 150);
        Add(foods_, "FOODS", "FoodName", "Pie");
    }
    static void Add(Connection& on, const QString& table, const QString& column,
                    const QVariant& value) {
        Recordset rows(on, "SELECT * FROM " + table, CursorType::Keyset, LockType::Optimistic);
        rows.AddNew();
        rows.Set(column, value);
        rows.Update();
    }
    static int Count(const QString& file, const QString& table) {
        SQLite::Database other(file.toStdString(), SQLite::OPEN_READONLY);
        return other.execAndGet("SELECT count(*) FROM " + table.toStdString()).getInt();
    }
    QStringList Beside() const { return QDir(folder_.path()).entryList(QDir::Files); }
};

TEST_F(TogetherTest, ATransactionKeepsTheRowsOfBothFiles) {
    {
        Transaction change(users_);
        AddOneEach();
        EXPECT_EQ(Count(UsersFile(), "USER_WEIGHTS"), 0);
        change.Commit();
    }
    EXPECT_EQ(Count(UsersFile(), "USER_WEIGHTS"), 1);
    EXPECT_EQ(Count(FoodsFile(), "FOODS"), 1);
    EXPECT_EQ(Beside(), (QStringList{"foods.mdb", "users.mdb"}));
}

TEST_F(TogetherTest, ATransactionThatIsNotCommittedTakesTheRowsOfBothFilesBack) {
    {
        const Transaction change(users_);
        AddOneEach();
    }
    EXPECT_EQ(Recordset(users_, "SELECT * FROM USER_WEIGHTS").RecordCount(), 0);
    EXPECT_EQ(Recordset(foods_, "SELECT * FROM FOODS").RecordCount(), 0);
    AddOneEach();
    EXPECT_EQ(Count(FoodsFile(), "FOODS"), 1);
}

TEST_F(TogetherTest, AnOlderFileIsUpdatedOnlyWhereTheFirstIsOpenForWriting) {
    foods_.Close();
    SQLite::Database(FoodsFile().toStdString(), SQLite::OPEN_READWRITE)
        .exec("DROP TRIGGER FOODS_Trigrams_Added; DROP TRIGGER FOODS_Trigrams_Removed;"
              "DROP TRIGGER FOODS_Trigrams_Changed; DROP TABLE FOODS_Trigrams;"
              "DROP INDEX FOODS_Unindexed; PRAGMA user_version = 2");
    const QByteArray older = Contents(FoodsFile());
    users_.OpenForReading(UsersFile(), DatabaseKind::Users);
    foods_.OpenTogether(FoodsFile(), DatabaseKind::Foods, users_);
    EXPECT_EQ(Contents(FoodsFile()), older);
    foods_.Close();
    users_.Open(UsersFile(), DatabaseKind::Users);
    foods_.OpenTogether(FoodsFile(), DatabaseKind::Foods, users_);
    EXPECT_NE(Contents(FoodsFile()), older);
}

TEST_F(TogetherTest, BothFilesAreSyncedFully) {
    for (const char* schema : {"main", "together"}) {
        const std::string pragma = std::string("PRAGMA ") + schema;
        EXPECT_EQ(users_.Raw().execAndGet(pragma + ".synchronous").getInt(), 3);
        EXPECT_EQ(users_.Raw().execAndGet(pragma + ".journal_mode").getString(), "delete");
    }
}

TEST_F(TogetherTest, AResultSetOfEitherFileStillOnlyReads) {
    EXPECT_EQ(ErrorOf([&] { Recordset(users_, "DELETE FROM USER_WEIGHTS"); }), -23);
    EXPECT_EQ(ErrorOf([&] { Recordset(foods_, "DELETE FROM FOODS"); }), -23);
    EXPECT_EQ(ErrorOf([&] { Recordset(foods_, "ATTACH 'x' AS y"); }), -23);
}

TEST_F(TogetherTest, AnotherProcessThatWritesIsToldWhenTheTransactionBegins) {
    SQLite::Database other(UsersFile().toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN IMMEDIATE");
    EXPECT_EQ(ErrorOf([&] { const Transaction second(users_); }), -5);
}

TEST_F(TogetherTest, OneOfBothStaysUsableAfterTheOtherIsClosed) {
    users_.Close();
    EXPECT_EQ(Recordset(foods_, "SELECT * FROM FOODS").RecordCount(), 0);
}

TEST_F(TogetherTest, ForReadingNeitherFileChanges) {
    AddOneEach();
    foods_.Close();
    const QByteArray before = Contents(UsersFile());
    users_.OpenForReading(UsersFile(), DatabaseKind::Users);
    foods_.OpenTogether(FoodsFile(), DatabaseKind::Foods, users_);
    EXPECT_EQ(Recordset(foods_, "SELECT * FROM FOODS").RecordCount(), 1);
    EXPECT_EQ(ErrorOf([&] { Add(users_, "USER_WEIGHTS", "Weight", 151); }), -8);
    EXPECT_EQ(ErrorOf([&] { Add(foods_, "FOODS", "FoodName", "Tart"); }), -8);
    EXPECT_EQ(Contents(UsersFile()), before);
}

TEST_F(TogetherTest, AFileOfAnOlderVersionIsNotOpenedForReading) {
    foods_.Close();
    users_.Raw().exec("PRAGMA user_version = 1");
    EXPECT_EQ(ErrorOf([&] { users_.OpenForReading(UsersFile(), DatabaseKind::Users); }), -17);
}

TEST_F(TogetherTest, ACopyIsTheStateOfTheLastCommit) {
    AddOneEach();
    const Transaction change(users_);
    Add(users_, "USER_WEIGHTS", "Weight", 151);
    const QString copy = File("copy.mdb");
    DatabaseCopy::Make(UsersFile(), copy);
    EXPECT_EQ(Count(copy, "USER_WEIGHTS"), 1);
    SQLite::Database other(copy.toStdString(), SQLite::OPEN_READONLY);
    EXPECT_EQ(other.execAndGet("PRAGMA integrity_check").getString(), "ok");
}

TEST_F(TogetherTest, ACopyOfWhatIsMissingFails) {
    EXPECT_EQ(ErrorOf([&] { DatabaseCopy::Make(File("missing.mdb"), File("copy.mdb")); }), -14);
}
