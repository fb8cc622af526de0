#include "store/DatabaseCopy.h"

#include "OrdinaryUser.h"
#include "StoreTest.h"

#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

class DatabaseCopyTest : public StoreTest {
protected:
    static QString NameIn(const QString& path) {
        SQLite::Database copy(path.toStdString(), SQLite::OPEN_READONLY);
        return QString::fromStdString(copy.execAndGet("SELECT FoodName FROM FOODS").getString());
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
