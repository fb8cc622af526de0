#include "SnapshotTest.h"

#include "records/Restoring.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "store/Connection.h"
#include "store/NameIndex.h"
#include "support/Failure.h"

#include <QDir>

class RestoringTest : public SnapshotTest {
protected:
    Snapshot Restore(const Snapshot& snapshot) {
        return Restoring(Records()).Put(snapshot, snapshot.settings, "replaced by a test");
    }
    void ExpectBothToOpen() {
        UserDB().Open(Records().Users(), DatabaseKind::Users);
        FoodDB().Open(Records().Foods(), DatabaseKind::Foods);
        EXPECT_EQ(Users("PRAGMA integrity_check"), "ok");
        EXPECT_EQ(Foods("PRAGMA integrity_check"), "ok");
        CloseDatabases();
    }
    QStringList Files() const { return QDir(Folder()).entryList(QDir::Files); }
};

TEST_F(RestoringTest, BothFilesComeBackAndWhatTheyReplaceIsKept) {
    AddWeight("2002-03-04", 150);
    AddOwnFood("Pie");
    const QStringList files = Files();
    const QStringList before = Rows(Records());
    const Snapshot snapshot = Make();
    AddWeight("2002-03-05", 151);
    AddOwnFood("Tart");
    const QStringList changed = Rows(Records());
    const Snapshot replaced = Restore(snapshot);
    EXPECT_EQ(Rows(Records()), before);
    EXPECT_EQ(Files(), files);
    EXPECT_EQ(replaced.kind, SnapshotKind::Replaced);
    EXPECT_EQ(Rows(replaced.Files()), changed);
    ExpectBothToOpen();
}

TEST_F(RestoringTest, WhatWasReplacedCanBeBroughtBack) {
    const Snapshot snapshot = Make();
    AddWeight("2002-03-05", 151);
    AddOwnFood("Tart");
    const QStringList changed = Rows(Records());
    Restore(Restore(snapshot));
    EXPECT_EQ(Rows(Records()), changed);
}

TEST_F(RestoringTest, AnIndexThatLacksRowsIsMadeAnew) {
    AddWeight("2002-03-04", 150);
    AddWeight("2002-03-05", 151);
    SpoilIndex();
    const QStringList before = Rows(Records());
    const Snapshot snapshot = Make();
    AddWeight("2002-03-06", 152);
    AddOwnFood("Tart");
    Restore(snapshot);
    EXPECT_EQ(Rows(Records()), before);
    ExpectBothToOpen();
}

TEST_F(RestoringTest, AFileThatIsTheSameIsNotTouched) {
    const Snapshot snapshot = Make();
    AddWeight("2002-03-05", 151);
    const FileState foods = FileState::Of(Records().Foods());
    Restore(snapshot);
    EXPECT_EQ(FileState::Of(Records().Foods()), foods);
    EXPECT_EQ(Rows(Records()), Rows(snapshot.Files()));
    ExpectBothToOpen();
}

TEST_F(RestoringTest, KeysThatWereGivenAreNotGivenAgain) {
    Change(Records().Users(), "INSERT INTO Recipes (RecipeName) VALUES ('a'), ('b');"
                              "DELETE FROM Recipes");
    const Snapshot snapshot = Make();
    Change(Records().Users(), "DELETE FROM sqlite_sequence");
    AddOwnFood("Tart");
    Restore(snapshot);
    UserDB().Open(Records().Users(), DatabaseKind::Users);
    UserDB().Raw().exec("INSERT INTO Recipes (RecipeName) VALUES ('c')");
    EXPECT_EQ(Users("SELECT RecipeID FROM Recipes"), 3);
}

TEST_F(RestoringTest, FilesOfAnOlderVersionComeBackAsTheyWere) {
    Change(Records().Users(), "PRAGMA user_version = 1");
    Change(Records().Foods(), "PRAGMA user_version = 1");
    const QStringList older = Rows(Records());
    const Snapshot snapshot = Make();
    ExpectBothToOpen(); // updates them
    EXPECT_NE(Rows(Records()), older);
    Restore(snapshot);
    EXPECT_EQ(Rows(Records()), older);
    ExpectBothToOpen();
}

TEST_F(RestoringTest, TheSettingsComeBack) {
    SetRegValue(Settings::FromEmail, "anna@example.org");
    const Snapshot snapshot = Make();
    SetRegValue(Settings::FromEmail, "zoe@example.org");
    Restore(snapshot);
    EXPECT_EQ(GetRegValue(Settings::FromEmail), "anna@example.org");
}

TEST_F(RestoringTest, DamagedFilesAreKeptAsTheyAreAndReplaced) {
    const Snapshot snapshot = Make();
    Damage(Records().Users());
    const QByteArray damaged = Bytes(Records().Users());
    const Snapshot replaced = Restore(snapshot);
    EXPECT_TRUE(replaced.damaged);
    EXPECT_EQ(Bytes(replaced.Files().Users()), damaged);
    EXPECT_EQ(Rows(Records()), Rows(snapshot.Files()));
    EXPECT_NE(FailureOf([&] { Restore(replaced); }), 0) << "damaged files do not come back";
    ExpectBothToOpen();
}

TEST_F(RestoringTest, DamageInsideAFileIsReplacedToo) {
    AddOwnFood("Pie");
    const Snapshot snapshot = Make();
    AddOwnFood("Tart");
    Damage(Records().Users(), 4096);
    const Snapshot replaced = Restore(snapshot);
    EXPECT_EQ(Rows(Records()), Rows(snapshot.Files()));
    EXPECT_NE(replaced.path, "");
    ExpectBothToOpen();
}

TEST_F(RestoringTest, MissingFilesComeBack) {
    const Snapshot snapshot = Make();
    QFile::remove(Records().Users());
    QFile::remove(Records().Foods());
    Restore(snapshot);
    EXPECT_EQ(Rows(Records()), Rows(snapshot.Files()));
    ExpectBothToOpen();
}

TEST_F(RestoringTest, AJournalThatDoesNotFitIsKeptAndLeavesTheFolder) {
    const Snapshot snapshot = Make();
    const QByteArray copy = Bytes(Records().Users());
    QByteArray log;
    {
        SQLite::Database file(Records().Users().toStdString(), SQLite::OPEN_READWRITE);
        file.exec("PRAGMA journal_mode = WAL; UPDATE profiles SET UserName = 'Zoe'");
        log = Bytes(Records().Users() + "-wal");
    }
    QFile::remove(Records().Users());
    QFile restored(Records().Users());
    ASSERT_TRUE(restored.open(QIODevice::WriteOnly));
    restored.write(copy);
    restored.close();
    QFile wal(Records().Users() + "-wal");
    ASSERT_TRUE(wal.open(QIODevice::WriteOnly));
    wal.write(log);
    wal.close();
    const Snapshot replaced = Restore(snapshot);
    EXPECT_EQ(Bytes(replaced.path + "/users.mdb-wal"), log);
    EXPECT_FALSE(QFile::exists(Records().Users() + "-wal"));
    ExpectBothToOpen();
}

TEST_F(RestoringTest, ASnapshotThatIsNotSoundChangesNothing) {
    AddOwnFood("Pie");
    const Snapshot snapshot = Make();
    QFile::setPermissions(snapshot.Files().Foods(), QFile::ReadOwner | QFile::WriteOwner);
    Damage(snapshot.Files().Foods(), 8192);
    AddOwnFood("Tart");
    const QStringList before = Rows(Records());
    EXPECT_EQ(FailureOf([&] { Restore(snapshot); }), -SQLITE_CORRUPT);
    EXPECT_EQ(Rows(Records()), before);
}

TEST_F(RestoringTest, ASnapshotOfANewerProgramChangesNothing) {
    const Snapshot snapshot = Make();
    QFile::setPermissions(snapshot.Files().Users(), QFile::ReadOwner | QFile::WriteOwner);
    Change(snapshot.Files().Users(), "PRAGMA user_version = 99");
    EXPECT_EQ(FailureOf([&] { Restore(snapshot); }), -SQLITE_NOTADB);
}

TEST_F(RestoringTest, NothingIsRestoredWhileTheWindowIsOpen) {
    const Snapshot snapshot = Make();
    AddWeight("2002-03-05", 151);
    const QStringList before = Rows(Records());
    const RecordsLock window(Records());
    EXPECT_EQ(FailureOf([&] { Restore(snapshot); }), ErrorNumber::RecordsInUse);
    EXPECT_EQ(Rows(Records()), before);
}

TEST_F(RestoringTest, TheIndexOfNamesComesBackWithBothFilesWhateverIsLeftOfIt) {
    AddOwnFood("Pie");
    const Snapshot snapshot = Make();
    for (const char* damage :
         {"DELETE FROM FOODS WHERE ID > 23508", "DROP TABLE FOODS_Trigrams",
          "DROP TABLE FOODS_Trigrams_data", "DELETE FROM FOODS_Trigrams_config"}) {
        SCOPED_TRACE(damage);
        AddWeight("2002-03-05", 151);
        Change(Records().Foods(), damage);
        Restore(snapshot);
        FoodDB().OpenForReading(Records().Foods(), DatabaseKind::Foods);
        EXPECT_TRUE(NameIndex::Answers(FoodDB().Raw()));
        EXPECT_TRUE(NameIndex::Fits(FoodDB().Raw()));
        EXPECT_EQ(Foods("SELECT count(*) FROM FOODS WHERE FoodName = 'Pie'"), 1);
        FoodDB().Close();
    }
}

TEST_F(RestoringTest, BothFilesFromBeforeTheIndexOfNamesComeBack) {
    AddOwnFood("Pie");
    BecomeVersionTwo();
    const QStringList before = Rows(Records());
    const Snapshot snapshot = Make();
    ExpectBothToOpen();
    AddWeight("2002-03-05", 151);
    AddOwnFood("Tart");
    Restore(snapshot);
    EXPECT_EQ(Rows(Records()), before);
    ExpectBothToOpen();
    FoodDB().OpenForReading(Records().Foods(), DatabaseKind::Foods);
    EXPECT_TRUE(NameIndex::Answers(FoodDB().Raw()) && NameIndex::Fits(FoodDB().Raw()));
    CloseDatabases();
}

TEST_F(RestoringTest, TablesOfAnotherToolAndOddNamesComeBackToo) {
    Change(Records().Users(), "CREATE TABLE \"an \"\"odd\"\" L. name\" (\"a b\" TEXT UNIQUE, c);"
                              "INSERT INTO \"an \"\"odd\"\" L. name\" VALUES ('x', NULL);"
                              "CREATE UNIQUE INDEX \"odd one\" ON USER_WEIGHTS (UID, UDate);"
                              "CREATE VIEW latest AS SELECT max(UDate) FROM USER_WEIGHTS");
    AddOwnFood("Pie");
    const Snapshot snapshot = Make();
    Change(Records().Users(), "DROP TABLE \"an \"\"odd\"\" L. name\"; DROP INDEX \"odd one\"");
    AddOwnFood("Tart");
    Restore(snapshot);
    UserDB().Open(Records().Users(), DatabaseKind::Users);
    EXPECT_EQ(Users("SELECT \"a b\" FROM \"an \"\"odd\"\" L. name\""), "x");
    EXPECT_EQ(Users("SELECT count(*) FROM sqlite_schema WHERE name = 'odd one'"), 1);
}
