#include "store/DatabaseCopy.h"

#include "OrdinaryUser.h"
#include "StoreTest.h"

#include <QFile>

#include <latch>
#include <thread>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr int FirstFood = 30001;
constexpr int LastFood = 33000;
constexpr int LongestWait = 60000; ///< milliseconds

/// Adds one to the first and to the last food, again and again, each time in one change.
class Writer {
public:
    explicit Writer(const QString& path)
        : database_(path.toStdString(), SQLite::OPEN_READWRITE, LongestWait) {
        database_.exec("PRAGMA synchronous = OFF");
    }

    void Run(const std::stop_token& end, std::latch& begun) {
        Write();
        begun.count_down();
        while (!end.stop_requested())
            Write();
    }

private:
    void Write() {
        SQLite::Statement add(database_,
                              "UPDATE FOODS SET Calories = Calories + 1 WHERE ID IN (?, ?)");
        add.bind(1, FirstFood);
        add.bind(2, LastFood);
        ASSERT_EQ(add.exec(), 2);
    }

    SQLite::Database database_;
};
} // namespace

class DatabaseCopyTest : public StoreTest {
protected:
    /// More pages than the copy takes at once.
    void AddManyFoods() {
        SQLite::Statement add(
            foods_.Raw(),
            "WITH RECURSIVE n(id) AS (SELECT ? UNION ALL SELECT id + 1 FROM n LIMIT ?) "
            "INSERT INTO FOODS (ID, FoodName, Calories) SELECT id, hex(zeroblob(2000)), 0 FROM n");
        add.bind(1, FirstFood);
        add.bind(2, LastFood - FirstFood + 1);
        ASSERT_EQ(add.exec(), LastFood - FirstFood + 1);
        ASSERT_GT(foods_.Raw().execAndGet("PRAGMA page_count").getInt(), 2048);
    }
    static std::string Ask(const QString& path, const std::string& question) {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READONLY);
        return database.execAndGet(question).getString();
    }
    static std::string NameIn(const QString& path) {
        return Ask(path, "SELECT FoodName FROM FOODS");
    }
    /// The message; empty where the copy was made.
    static QString Failure(const QString& from, const QString& to) {
        try {
            DatabaseCopy::Make(from, to);
        } catch (const RuntimeError& failure) {
            EXPECT_LT(failure.Number(), 0);
            return failure.Description();
        }
        return {};
    }
};

TEST_F(DatabaseCopyTest, HoldsTheLastCommitWhileTheFileIsOpen) {
    AddFood(30001, "Rye");
    DatabaseCopy::Make(FoodsFile(), File("copy.mdb"));
    EXPECT_EQ(NameIn(File("copy.mdb")), "Rye");
}

TEST_F(DatabaseCopyTest, AFileInAFolderThatMayOnlyBeReadIsCopied) {
    AddFood(30001, "Rye");
    foods_.Raw().exec("PRAGMA journal_mode = WAL"); // a reader, too, makes two more files
    foods_.Close();
    users_.Close();
    const QTemporaryDir open;
    ASSERT_TRUE(QFile::setPermissions(open.path(), All));
    ASSERT_TRUE(QFile::setPermissions(FoodsFile(), All));
    ASSERT_TRUE(QFile::setPermissions(folder_.path(), NoWriting));
    {
        const OrdinaryUser user;
        DatabaseCopy::Make(FoodsFile(), open.filePath("copy.mdb"));
        EXPECT_EQ(NameIn(open.filePath("copy.mdb")), "Rye");
    }
    ASSERT_TRUE(QFile::setPermissions(folder_.path(), All));
}

TEST_F(DatabaseCopyTest, AFileOfManyPagesIsCopiedWhole) {
    AddManyFoods();
    const QString copy = File("copy.mdb");
    DatabaseCopy::Make(FoodsFile(), copy);
    for (const auto* question : {"PRAGMA page_count", "SELECT COUNT(*) FROM FOODS",
                                 "SELECT SUM(LENGTH(FoodName)) FROM FOODS"})
        EXPECT_EQ(Ask(copy, question), Ask(FoodsFile(), question));
    EXPECT_EQ(Ask(copy, "PRAGMA integrity_check"), "ok");
}

TEST_F(DatabaseCopyTest, WhatIsWrittenDuringTheCopyIsInItWhollyOrNotAtAll) {
    AddManyFoods();
    std::latch begun(1);
    const std::jthread thread(
        [&](const std::stop_token& end) { Writer(FoodsFile()).Run(end, begun); });
    begun.wait();
    const QString copy = File("copy.mdb");
    DatabaseCopy::Make(FoodsFile(), copy);
    EXPECT_EQ(Ask(copy, "SELECT COUNT(DISTINCT Calories) FROM FOODS WHERE Calories > 0"), "1");
    EXPECT_EQ(Ask(copy, "SELECT COUNT(*) FROM FOODS WHERE Calories > 0"), "2");
    EXPECT_EQ(Ask(copy, "PRAGMA integrity_check"), "ok");
}

TEST_F(DatabaseCopyTest, AFileThatIsNotThereIsNamed) {
    EXPECT_TRUE(Failure(File("none.mdb"), File("copy.mdb")).contains("none.mdb"));
    EXPECT_FALSE(QFile::exists(File("none.mdb")));
}

TEST_F(DatabaseCopyTest, APlaceThatCannotBeWrittenIsNamed) {
    EXPECT_TRUE(Failure(FoodsFile(), File("none/copy.mdb")).contains("copy.mdb"));
}

TEST_F(DatabaseCopyTest, AFileThatIsNoDatabaseIsRefused) {
    QFile text(File("text.mdb"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write(QByteArray(4096, 'x'));
    text.close();
    EXPECT_NE(Failure(File("text.mdb"), File("copy.mdb")), "");
}
