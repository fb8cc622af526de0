#include "SnapshotTest.h"

#include "foods/FoodSearch.h"
#include "foods/SearchTerms.h"
#include "intake/DayLog.h"
#include "records/RecordsChange.h"
#include "records/RecordsLock.h"
#include "records/RecordsReading.h"
#include "store/Connection.h"
#include "store/Recordset.h"
#include "support/Failure.h"

#include <QDir>
#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

class RecordsAccessTest : public SnapshotTest {
protected:
    static constexpr int ReadOnly = -8;

    QByteArray Users() const { return Bytes(Records().Users()); }
    QStringList Files() const { return QDir(Folder()).entryList(QDir::Files); }
    static int Weights() {
        return Recordset(UserDB(), QStringLiteral("SELECT * FROM USER_WEIGHTS")).RecordCount();
    }
};

TEST_F(RecordsAccessTest, ReadingChangesNothing) {
    const QByteArray before = Users();
    const QStringList files = Files();
    {
        const RecordsReading records(Records());
        EXPECT_EQ(FailureOf([] { DayLog::SetWeight(QDate(2002, 3, 4), 150); }), ReadOnly);
        EXPECT_EQ(Files(), files);
    }
    EXPECT_EQ(Users(), before);
    EXPECT_EQ(UserDB().state(), Connection::Closed);
}

TEST_F(RecordsAccessTest, ReadingWhileTheRecordsAreOpenElsewhereReadsTheLastCommit) {
    const RecordsLock window(Records());
    SQLite::Database writer(Records().Users().toStdString(), SQLite::OPEN_READWRITE);
    writer.exec("INSERT INTO USER_WEIGHTS VALUES (1, '2002-03-04', 150)");
    writer.exec("BEGIN IMMEDIATE; INSERT INTO USER_WEIGHTS VALUES (1, '2002-03-05', 151)");
    const RecordsReading records(Records());
    EXPECT_EQ(Weights(), 1);
    writer.exec("COMMIT"); // nobody holds the file
}

TEST_F(RecordsAccessTest, ReadingAFileOfAnOlderVersionUpdatesACopyOnly) {
    {
        SQLite::Database older(Records().Users().toStdString(), SQLite::OPEN_READWRITE);
        older.exec("PRAGMA user_version = 1"); // the step to 2 keeps tables of either shape
    }
    const QByteArray before = Users();
    const RecordsReading records(Records());
    EXPECT_EQ(Weights(), 0);
    EXPECT_EQ(Users(), before);
}

/// A folder may allow no update, and a large catalogue would take long to copy.
TEST_F(RecordsAccessTest, AFileFromBeforeTheIndexOfNamesIsReadWhereItIsAndSearched) {
    BecomeVersionTwo();
    const QByteArray before = Bytes(Records().Foods());
    const RecordsReading records(Records());
    EXPECT_EQ(FoodDB().Path(), Records().Foods());
    EXPECT_GT(FoodSearch::Find(SearchTerms("quinoa"), {true, true, true}).Count(), 0);
    EXPECT_TRUE(Bytes(Records().Foods()) == before);
}

TEST_F(RecordsAccessTest, AChangeThatIsNotCommittedIsTakenBack) {
    {
        const RecordsChange change(Records());
        DayLog::SetWeight(QDate(2002, 3, 4), 150);
        EXPECT_EQ(Weights(), 1);
    }
    const RecordsReading records(Records());
    EXPECT_EQ(Weights(), 0);
}

TEST_F(RecordsAccessTest, ACommittedChangeStaysAndTheLockGoes) {
    const QStringList files = Files();
    {
        RecordsChange change(Records());
        DayLog::SetWeight(QDate(2002, 3, 4), 150);
        change.Commit();
    }
    EXPECT_EQ(Files(), files);
    const RecordsReading records(Records());
    EXPECT_EQ(Weights(), 1);
}

TEST_F(RecordsAccessTest, NothingIsChangedWhileTheRecordsAreOpenElsewhere) {
    const RecordsLock window(Records());
    EXPECT_EQ(FailureOf([&] { const RecordsChange change(Records()); }), ErrorNumber::RecordsInUse);
    EXPECT_EQ(UserDB().state(), Connection::Closed);
}

/// The store takes it for one that must be rolled back, which a reader cannot do.
TEST_F(RecordsAccessTest, AJournalThatHoldsNothingForTheFileKeepsNobodyFromReading) {
    QFile journal(Records().Users() + "-journal");
    ASSERT_TRUE(journal.open(QIODevice::WriteOnly));
    journal.write(QByteArray::fromHex("d9d505f920a163d700000000") + QByteArray(500, '\1'));
    journal.close();
    const QByteArray before = Users();
    const QStringList files = Files();
    const RecordsReading records(Records());
    EXPECT_EQ(Weights(), 0);
    EXPECT_EQ(Users(), before);
    EXPECT_EQ(Files(), files);
}
