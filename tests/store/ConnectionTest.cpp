#include "OrdinaryUser.h"
#include "StoreTest.h"

#include "store/LeftJournal.h"
#include "store/Schema.h"
#include "store/StoreError.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <SQLiteCpp/SQLiteCpp.h>

#include <map>

#include <unistd.h>

namespace {
constexpr int Busy = -5;
constexpr int ReadOnly = -8;
constexpr int Corrupt = -11;
constexpr int CannotOpen = -14;
constexpr int NoDatabase = -26;
} // namespace

class ConnectionTest : public StoreTest {
protected:
    void SetUp() override {
        StoreTest::SetUp();
        Run(foods_, "BEGIN");
        for (int i = 1; i <= 300; ++i)
            AddFood(i, QStringLiteral("Food %1 with a name long enough to fill some pages").arg(i));
        Run(foods_, "COMMIT");
        foods_.Close();
        users_.Close();
        sound_ = Contents(FoodsFile());
    }

    void Write(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QStringList Listing() const {
        return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden);
    }

    /// Opens foods.mdb with this content: it must be refused with this error and stay unchanged.
    void ExpectRefused(const QByteArray& content, int number, const char* saying) {
        Write(FoodsFile(), content);
        ExpectRefused(number, saying);
        EXPECT_TRUE(Contents(FoodsFile()) == content);
    }
    void ExpectRefused(int number, const char* saying, DatabaseKind kind = DatabaseKind::Foods) {
        const QStringList before = Listing();
        QString text;
        const int got = ErrorOf([&] {
            try {
                foods_.Open(FoodsFile(), kind);
            } catch (const RuntimeError& error) {
                text = error.Description();
                throw;
            }
        });
        EXPECT_EQ(got, number) << text.toStdString();
        EXPECT_TRUE(text.contains("foods.mdb")) << text.toStdString();
        EXPECT_TRUE(text.contains(saying)) << text.toStdString();
        EXPECT_EQ(foods_.state(), Connection::Closed);
        EXPECT_EQ(Listing(), before);
    }

    /// A copy of the open foods.mdb and its journal, as a kill leaves them.
    void CopyAsKilled(const QString& name, const QString& journal) {
        ASSERT_TRUE(QFile::copy(FoodsFile(), File(name)));
        ASSERT_TRUE(QFile::copy(FoodsFile() + journal, File(name) + journal));
    }

    /// Leaves killed.mdb with changes of its last write in it, and the journal that takes them
    /// back.
    void KillInTheMiddleOfAWrite(const QString& rows = "ID > 0",
                                 const QString& first = "SELECT 1") {
        foods_.Open(FoodsFile(), DatabaseKind::Foods);
        Run(foods_, "UPDATE FOODS SET Calories = 1 WHERE ID = 1");
        Run(foods_, "BEGIN");
        Run(foods_, first);
        Run(foods_, "PRAGMA cache_spill = 1");
        Run(foods_, "PRAGMA cache_size = 1");
        Run(foods_, "UPDATE FOODS SET FoodName = FoodName || ' changed' WHERE " + rows);
        Run(foods_, "SELECT count(*) FROM FOODS NOT INDEXED WHERE Serv_Desc_A = ''");
        CopyAsKilled("killed.mdb", "-journal");
        Run(foods_, "ROLLBACK");
        ASSERT_TRUE(Contents(File("killed.mdb")).contains("changed"));
    }

    /// Leaves killed.mdb as the version with a `-wal` left it: the last change is only in there.
    void KillTheEarlierVersion(const std::string& change) {
        SQLite::Database earlier(FoodsFile().toStdString(), SQLite::OPEN_READWRITE);
        earlier.exec("PRAGMA journal_mode = WAL");
        earlier.exec(change);
        CopyAsKilled("killed.mdb", "-wal");
        earlier.exec("PRAGMA journal_mode = DELETE");
    }

    /// The last content of each page in the log beside killed.mdb, by its number.
    std::map<quint32, QByteArray> PagesOfLog() {
        constexpr qsizetype header = 32, frameHeader = 24, page = 4096;
        const QByteArray log = Contents(File("killed.mdb-wal"));
        std::map<quint32, QByteArray> pages;
        for (qsizetype at = header; at + frameHeader + page <= log.size(); at += frameHeader + page)
            pages[qFromBigEndian<quint32>(log.constData() + at)] = log.mid(at + frameHeader, page);
        return pages;
    }

    /// Leaves a log of one page, which is in killed.mdb already. Returns the header of its frame.
    QByteArray KillAfterTheOnlyFrameWasTakenIn() {
        KillTheEarlierVersion("UPDATE FOODS SET Calories = 1 WHERE ID = 300");
        const std::map<quint32, QByteArray> pages = PagesOfLog();
        EXPECT_EQ(pages.size(), 1U);
        const auto& [number, page] = *pages.begin();
        QByteArray file = Contents(File("killed.mdb"));
        PutInPlaceOfKilled(file.replace(qsizetype(number - 1) * page.size(), page.size(), page),
                           "-wal");
        constexpr qsizetype header = 32, frameHeader = 24;
        return Contents(File("killed.mdb-wal")).mid(header, frameHeader);
    }

    /// A copied or restored file gets its own time, later than the journal's.
    void MoveLater(const QString& path, const QString& than) {
        const auto time = [](const QString& file) { return QFileInfo(file).metadataChangeTime(); };
        while (time(path) <= time(than)) {
            ASSERT_TRUE(QFile::rename(path, path + ".moved"));
            ASSERT_TRUE(QFile::rename(path + ".moved", path));
        }
    }
    void PutInPlaceOfKilled(const QByteArray& copy, const QString& journal) {
        Write(File("killed.mdb"), copy);
        MoveLater(File("killed.mdb"), File("killed.mdb") + journal);
    }

    /// The journal beside killed.mdb is refused, and all files stay as they are.
    void ExpectSetAside(const QString& journal) {
        const QByteArray file = Contents(File("killed.mdb"));
        const QByteArray changes = Contents(File("killed.mdb") + journal);
        const QStringList before = Listing();
        Connection killed;
        QString text;
        try {
            killed.Open(File("killed.mdb"), DatabaseKind::Foods);
            ADD_FAILURE() << "a journal of another file was taken in";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::JournalDoesNotFit);
            text = error.Description();
        }
        EXPECT_TRUE(text.contains("killed.mdb" + journal)) << text.toStdString();
        EXPECT_TRUE(text.contains("the file killed.mdb ")) << text.toStdString();
        EXPECT_TRUE(Contents(File("killed.mdb")) == file);
        EXPECT_TRUE(Contents(File("killed.mdb") + journal) == changes);
        EXPECT_EQ(Listing(), before);
    }

    QByteArray sound_;
};

TEST_F(ConnectionTest, OpensClosesAndOpensAgain) {
    EXPECT_EQ(foods_.state(), Connection::Closed);
    for (int i = 0; i < 3; ++i) {
        foods_.Open(FoodsFile(), DatabaseKind::Foods);
        EXPECT_EQ(foods_.state(), Connection::Opened);
        EXPECT_EQ(foods_.state(), 1);
        EXPECT_EQ(foods_.Path(), FoodsFile());
        EXPECT_EQ(First(foods_, "SELECT count(*) FROM FOODS"), 300);
        foods_.Close();
        EXPECT_EQ(foods_.state(), Connection::Closed);
    }
    foods_.Close();
}

TEST_F(ConnectionTest, AClosedConnectionCannotBeUsed) {
    EXPECT_EQ(ErrorOf([&] { foods_.Raw(); }), ErrorNumber::NotOpen);
    EXPECT_EQ(ErrorOf([&] { foods_.Statements(); }), ErrorNumber::NotOpen);
    EXPECT_EQ(ErrorOf([&] { (void)foods_.Path(); }), ErrorNumber::NotOpen);
}

TEST_F(ConnectionTest, OpeningAnOpenConnectionClosesItFirst) {
    users_.Open(UsersFile(), DatabaseKind::Users);
    users_.Open(FoodsFile(), DatabaseKind::Foods);
    EXPECT_EQ(First(users_, "SELECT count(*) FROM FOODS"), 300);
}

TEST_F(ConnectionTest, ClosedFilesStandAlone) {
    users_.Open(UsersFile(), DatabaseKind::Users);
    foods_.Open(FoodsFile(), DatabaseKind::Foods);
    Run(users_, "INSERT INTO profiles (UserName) VALUES ('Anna')");
    const Recordset set(users_, "SELECT * FROM profiles");
    users_.Close();
    foods_.Close();
    EXPECT_EQ(Listing(), QStringList({"foods.mdb", "users.mdb"}));
}

TEST_F(ConnectionTest, ACommitReachesTheDisk) {
    foods_.Open(FoodsFile(), DatabaseKind::Foods);
    EXPECT_EQ(First(foods_, "PRAGMA journal_mode"), "delete");
    EXPECT_EQ(First(foods_, "PRAGMA synchronous"), 3);
}

TEST_F(ConnectionTest, PathsOfEveryKindOpen) {
    for (const char* name : {"with blank.mdb", "per%20cent.mdb", "question?mark#.mdb",
                             "crème 🍞.mdb", "quote'.mdb", "file:x"}) {
        const QString path = File(QString::fromUtf8(name));
        Write(path, sound_);
        foods_.Open(path, DatabaseKind::Foods);
        EXPECT_EQ(First(foods_, "SELECT count(*) FROM FOODS"), 300) << name;
        foods_.Close();
    }
}

TEST_F(ConnectionTest, ARelativePathOpens) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder_.path()));
    foods_.Open("foods.mdb", DatabaseKind::Foods);
    EXPECT_EQ(First(foods_, "SELECT count(*) FROM FOODS"), 300);
    foods_.Close();
    ASSERT_TRUE(QDir::setCurrent(before));
}

TEST_F(ConnectionTest, AMissingFileIsRefusedAndNotMade) {
    ASSERT_TRUE(QFile::remove(FoodsFile()));
    ExpectRefused(CannotOpen, "not there");
    EXPECT_FALSE(QFile::exists(FoodsFile()));
}

TEST_F(ConnectionTest, AFolderIsRefused) {
    ASSERT_TRUE(QFile::remove(FoodsFile()));
    ASSERT_TRUE(QDir().mkdir(FoodsFile()));
    ExpectRefused(CannotOpen, "not a file");
}

TEST_F(ConnectionTest, AnEmptyFileIsRefused) {
    ExpectRefused("", NoDatabase, "empty");
}

TEST_F(ConnectionTest, AFileThatIsNoDatabaseIsRefused) {
    ExpectRefused("x", NoDatabase, "not a database");
    ExpectRefused(QByteArray(100000, 'x'), NoDatabase, "not a database");
    ExpectRefused(QByteArray(4096, '\0'), NoDatabase, "not a database");
    ExpectRefused("SQLite format 3 is a fine format", NoDatabase, "not a database");
}

TEST_F(ConnectionTest, AFileCutShortIsRefusedWhereverItIsCut) {
    const qsizetype size = sound_.size();
    for (const qsizetype length : {size - 1, size - 4096, size / 2, size / 2 + 1, qsizetype(4096),
                                   qsizetype(4095), qsizetype(1024), qsizetype(100)})
        ExpectRefused(sound_.first(length), Corrupt, "damaged");
    ExpectRefused(sound_.first(99), Corrupt, "damaged");
    ExpectRefused(sound_.first(16), Corrupt, "damaged");
    ExpectRefused(sound_.first(15), NoDatabase, "not a database");
}

TEST_F(ConnectionTest, AFileWithADamagedSchemaIsRefused) {
    QByteArray damaged = sound_;
    damaged.replace(100, 8, QByteArray(8, '\x7F'));
    ExpectRefused(damaged, Corrupt, "damaged");
    QByteArray garbled = sound_;
    garbled.replace("CREATE TABLE FOODS", "CREATE TABLE (((((");
    ExpectRefused(garbled, Corrupt, "damaged");
}

TEST_F(ConnectionTest, AFileOfAnotherKindIsRefused) {
    ExpectRefused(NoDatabase, "another kind", DatabaseKind::Users);
    ASSERT_TRUE(QFile::remove(FoodsFile()));
    ASSERT_TRUE(QFile::copy(UsersFile(), FoodsFile()));
    ExpectRefused(NoDatabase, "another kind");
}

TEST_F(ConnectionTest, ADatabaseOfAnotherProgramIsRefused) {
    ASSERT_TRUE(QFile::remove(FoodsFile()));
    {
        SQLite::Database other(FoodsFile().toStdString(),
                               SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        other.exec("CREATE TABLE FOODS (ID)");
    }
    ExpectRefused(NoDatabase, "another kind");
}

TEST_F(ConnectionTest, ADatabaseWithoutTablesIsRefused) {
    ASSERT_TRUE(QFile::remove(FoodsFile()));
    {
        SQLite::Database bare(FoodsFile().toStdString(),
                              SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        bare.exec("PRAGMA application_id = " +
                  std::to_string(Schema::ApplicationId(DatabaseKind::Foods)));
        bare.exec("VACUUM");
    }
    ExpectRefused(NoDatabase, "no tables");
}

TEST_F(ConnectionTest, ANewerSchemaIsRefused) {
    {
        SQLite::Database database(FoodsFile().toStdString(), SQLite::OPEN_READWRITE);
        database.exec("PRAGMA user_version = " + std::to_string(Schema::Version + 1));
    }
    const QByteArray before = Contents(FoodsFile());
    ExpectRefused(NoDatabase, "newer version");
    EXPECT_TRUE(Contents(FoodsFile()) == before);
}

TEST_F(ConnectionTest, AFileThatCannotBeWrittenIsRefused) {
    ASSERT_TRUE(QFile::setPermissions(folder_.path(), All));
    ASSERT_TRUE(QFile::setPermissions(FoodsFile(), NoWriting));
    {
        const OrdinaryUser user;
        ExpectRefused(ReadOnly, "cannot be written");
    }
    EXPECT_TRUE(Contents(FoodsFile()) == sound_);
}

TEST_F(ConnectionTest, AFileThatCannotBeReadIsRefused) {
    ASSERT_TRUE(QFile::setPermissions(folder_.path(), All));
    ASSERT_TRUE(QFile::setPermissions(FoodsFile(), {}));
    {
        const OrdinaryUser user;
        ExpectRefused(CannotOpen, "reading it is not allowed");
    }
    EXPECT_TRUE(Contents(FoodsFile()) == sound_);
}

TEST_F(ConnectionTest, AFolderThatCannotBeWrittenIsRefused) {
    ASSERT_TRUE(QFile::setPermissions(FoodsFile(), All));
    ASSERT_TRUE(QFile::setPermissions(folder_.path(), NoWriting));
    {
        const OrdinaryUser user;
        ExpectRefused(CannotOpen, "folder");
    }
    ASSERT_TRUE(QFile::setPermissions(folder_.path(), All));
    EXPECT_TRUE(Contents(FoodsFile()) == sound_);
}

TEST_F(ConnectionTest, ANewFileInAFolderThatCannotBeWrittenIsRefused) {
    ASSERT_TRUE(QFile::remove(FoodsFile()));
    Schema::Create(FoodsFile(), DatabaseKind::Foods);
    const QByteArray before = Contents(FoodsFile());
    ASSERT_TRUE(QFile::setPermissions(FoodsFile(), All));
    ASSERT_TRUE(QFile::setPermissions(folder_.path(), NoWriting));
    {
        const OrdinaryUser user;
        ExpectRefused(CannotOpen, "folder");
    }
    ASSERT_TRUE(QFile::setPermissions(folder_.path(), All));
    EXPECT_TRUE(Contents(FoodsFile()) == before);
}

TEST_F(ConnectionTest, AFileLockedByAnotherProgramIsRefused) {
    SQLite::Database other(FoodsFile().toStdString(), SQLite::OPEN_READWRITE);
    other.exec("PRAGMA journal_mode = DELETE");
    other.exec("BEGIN EXCLUSIVE");
    ExpectRefused(Busy, "Another program");
}

TEST_F(ConnectionTest, ARefusalDoesNotCloseTheOtherConnection) {
    users_.Open(UsersFile(), DatabaseKind::Users);
    ExpectRefused("", NoDatabase, "empty");
    EXPECT_EQ(First(users_, "SELECT count(*) FROM profiles"), 0);
    Write(FoodsFile(), sound_);
    foods_.Open(FoodsFile(), DatabaseKind::Foods);
    EXPECT_EQ(First(foods_, "SELECT count(*) FROM FOODS"), 300);
}

TEST_F(ConnectionTest, ACopyOfTheOpenFileAloneHoldsEverythingThatWasCommitted) {
    foods_.Open(FoodsFile(), DatabaseKind::Foods);
    AddFood(23509, "Mine");
    EXPECT_EQ(Listing(), QStringList({"foods.mdb", "users.mdb"}));
    ASSERT_TRUE(QFile::copy(FoodsFile(), File("copy.mdb")));
    Connection copy;
    copy.Open(File("copy.mdb"), DatabaseKind::Foods);
    EXPECT_EQ(First(copy, "SELECT FoodName FROM FOODS WHERE ID = 23509"), "Mine");
    EXPECT_EQ(First(copy, "PRAGMA integrity_check"), "ok");
}

TEST_F(ConnectionTest, OpeningLeavesAFileAsItWasToTheByte) {
    foods_.Open(FoodsFile(), DatabaseKind::Foods);
    EXPECT_TRUE(Contents(FoodsFile()) == sound_);
    foods_.Close();
    EXPECT_TRUE(Contents(FoodsFile()) == sound_);
}

TEST_F(ConnectionTest, WhatAKilledProcessDidNotCommitIsNotThere) {
    KillInTheMiddleOfAWrite();
    Connection killed;
    killed.Open(File("killed.mdb"), DatabaseKind::Foods);
    EXPECT_EQ(First(killed, "SELECT count(*) FROM FOODS"), 300);
    EXPECT_EQ(First(killed, "SELECT count(*) FROM FOODS WHERE FoodName LIKE '%changed'"), 0);
    EXPECT_EQ(First(killed, "PRAGMA integrity_check"), "ok");
    EXPECT_FALSE(QFile::exists(File("killed.mdb-journal")));
}

TEST_F(ConnectionTest, ACommitWhoseJournalIsStillThereIsTakenBack) {
    foods_.Open(FoodsFile(), DatabaseKind::Foods);
    Run(foods_, "BEGIN");
    Run(foods_, "UPDATE FOODS SET Calories = 1");
    const QString journal = File("killed.mdb-journal");
    ASSERT_EQ(link(QFile::encodeName(FoodsFile() + "-journal"), QFile::encodeName(journal)), 0);
    Run(foods_, "COMMIT");
    ASSERT_TRUE(QFile::copy(FoodsFile(), File("killed.mdb")));
    foods_.Close();
    Connection killed;
    killed.Open(File("killed.mdb"), DatabaseKind::Foods);
    EXPECT_EQ(First(killed, "SELECT count(*) FROM FOODS WHERE Calories = 1"), 0);
    EXPECT_EQ(First(killed, "PRAGMA integrity_check"), "ok");
}

TEST_F(ConnectionTest, AWriteAheadLogOfAnEarlierVersionIsTakenInOnce) {
    KillTheEarlierVersion("UPDATE FOODS SET FoodName = 'Mine' WHERE ID = 300");
    Connection killed;
    killed.Open(File("killed.mdb"), DatabaseKind::Foods);
    EXPECT_EQ(First(killed, "SELECT FoodName FROM FOODS WHERE ID = 300"), "Mine");
    EXPECT_EQ(First(killed, "PRAGMA integrity_check"), "ok");
    EXPECT_EQ(First(killed, "PRAGMA journal_mode"), "delete");
    EXPECT_FALSE(QFile::exists(File("killed.mdb-wal")));
    EXPECT_FALSE(QFile::exists(File("killed.mdb-shm")));
    ASSERT_TRUE(QFile::copy(File("killed.mdb"), File("copy.mdb")));
    SQLite::Database copy(File("copy.mdb").toStdString());
    EXPECT_EQ(copy.execAndGet("SELECT FoodName FROM FOODS WHERE ID = 300").getString(), "Mine");
    EXPECT_EQ(copy.execAndGet("PRAGMA journal_mode").getString(), "delete");
}

TEST_F(ConnectionTest, AClosedFileOfAnEarlierVersionIsSwitched) {
    SQLite::Database(FoodsFile().toStdString(), SQLite::OPEN_READWRITE)
        .exec("PRAGMA journal_mode = WAL");
    foods_.Open(FoodsFile(), DatabaseKind::Foods);
    EXPECT_EQ(First(foods_, "SELECT count(*) FROM FOODS"), 300);
    EXPECT_EQ(First(foods_, "PRAGMA journal_mode"), "delete");
    EXPECT_EQ(Listing(), QStringList({"foods.mdb", "users.mdb"}));
}

TEST_F(ConnectionTest, ANewerSchemaInTheJournalIsRefusedUnchanged) {
    KillTheEarlierVersion("PRAGMA user_version = 99");
    const QByteArray file = Contents(File("killed.mdb"));
    const QByteArray journal = Contents(File("killed.mdb-wal"));
    Connection killed;
    EXPECT_EQ(ErrorOf([&] { killed.Open(File("killed.mdb"), DatabaseKind::Foods); }), NoDatabase);
    EXPECT_TRUE(Contents(File("killed.mdb")) == file);
    EXPECT_TRUE(Contents(File("killed.mdb-wal")) == journal);
}

TEST_F(ConnectionTest, AJournalThatIsGarbageIsPassedOver) {
    for (const char* ending : {"-wal", "-journal"}) {
        Write(FoodsFile() + ending, QByteArray(10000, 'x'));
        foods_.Open(FoodsFile(), DatabaseKind::Foods);
        EXPECT_EQ(First(foods_, "SELECT count(*) FROM FOODS"), 300);
        EXPECT_EQ(First(foods_, "PRAGMA integrity_check"), "ok");
    }
}

TEST_F(ConnectionTest, AnOlderCopyBesideTheJournalOfAKilledWriteIsLeftAlone) {
    KillInTheMiddleOfAWrite();
    PutInPlaceOfKilled(sound_.replace("with a name", "WITH A NAME"), "-journal");
    Run(foods_, "UPDATE FOODS SET Calories = 2 WHERE ID = 1");
    ExpectSetAside("-journal");
}

TEST_F(ConnectionTest, ANewerCopyBesideTheJournalOfAKilledWriteIsLeftAlone) {
    KillInTheMiddleOfAWrite();
    Run(foods_, "UPDATE FOODS SET Calories = 2 WHERE ID = 1");
    Run(foods_, "UPDATE FOODS SET Calories = 3 WHERE ID = 1");
    PutInPlaceOfKilled(Contents(FoodsFile()), "-journal");
    ExpectSetAside("-journal");
}

TEST_F(ConnectionTest, AnotherFileWithAsManyChangesBesideAJournalIsLeftAlone) {
    KillInTheMiddleOfAWrite("ID <= 3");
    foods_.Close();
    ASSERT_TRUE(QFile::remove(FoodsFile()));
    Schema::Create(FoodsFile(), DatabaseKind::Foods);
    foods_.Open(FoodsFile(), DatabaseKind::Foods);
    Run(foods_, "BEGIN");
    for (int i = 1; i <= 300; ++i)
        AddFood(i, QStringLiteral("Meal %1 with a name long enough to fill some pages").arg(-i));
    Run(foods_, "COMMIT");
    Run(foods_, "UPDATE FOODS SET Calories = 1 WHERE ID = 1");
    PutInPlaceOfKilled(Contents(FoodsFile()), "-journal");
    ExpectSetAside("-journal");
}

TEST_F(ConnectionTest, TheCopyOfJustThatStateBesideAJournalOpens) {
    KillInTheMiddleOfAWrite();
    PutInPlaceOfKilled(Contents(FoodsFile()), "-journal");
    Connection killed;
    killed.Open(File("killed.mdb"), DatabaseKind::Foods);
    EXPECT_EQ(First(killed, "PRAGMA integrity_check"), "ok");
    killed.Close();
    EXPECT_TRUE(Contents(File("killed.mdb")) == Contents(FoodsFile()));
}

TEST_F(ConnectionTest, ACopyBesideTheLogOfAnEarlierVersionIsLeftAloneUntilThePersonDecides) {
    KillTheEarlierVersion("UPDATE FOODS SET FoodName = 'Mine' WHERE ID = 300");
    PutInPlaceOfKilled(Contents(File("killed.mdb")), "-wal");
    ExpectSetAside("-wal");
    MoveLater(File("killed.mdb-wal"), File("killed.mdb"));
    Connection killed;
    killed.Open(File("killed.mdb"), DatabaseKind::Foods);
    EXPECT_EQ(First(killed, "SELECT FoodName FROM FOODS WHERE ID = 300"), "Mine");
}

TEST_F(ConnectionTest, ALogThatWasHalfTakenInIsTakenInAgain) {
    KillTheEarlierVersion("UPDATE FOODS SET FoodName = 'Mine' WHERE ID = 300");
    const QByteArray after = Contents(FoodsFile());
    QByteArray half = Contents(File("killed.mdb"));
    constexpr qsizetype page = 4096;
    qsizetype first = page; // the first page of the file changes by the switch of its mode alone
    while (half.mid(first, page) == after.mid(first, page))
        first += page;
    half.replace(first, page, after.mid(first, page));
    PutInPlaceOfKilled(half, "-wal");
    Connection killed;
    killed.Open(File("killed.mdb"), DatabaseKind::Foods);
    EXPECT_EQ(First(killed, "SELECT FoodName FROM FOODS WHERE ID = 300"), "Mine");
    EXPECT_EQ(First(killed, "PRAGMA integrity_check"), "ok");
}

TEST_F(ConnectionTest, ACopySetApartFromTheLogOfAnEarlierVersionOpens) {
    KillTheEarlierVersion("UPDATE FOODS SET FoodName = 'Mine' WHERE ID = 300");
    PutInPlaceOfKilled(Contents(File("killed.mdb")), "-wal");
    ASSERT_TRUE(QFile::rename(File("killed.mdb-wal"), File("aside")));
    Connection killed;
    killed.Open(File("killed.mdb"), DatabaseKind::Foods);
    EXPECT_EQ(First(killed, "SELECT count(*) FROM FOODS WHERE FoodName = 'Mine'"), 0);
}

TEST_F(ConnectionTest, AFileOfThisVersionNeverTakesALogIn) {
    KillTheEarlierVersion("UPDATE FOODS SET FoodName = 'Mine' WHERE ID = 300");
    Write(File("killed.mdb"), sound_);
    MoveLater(File("killed.mdb-wal"), File("killed.mdb"));
    ExpectSetAside("-wal");
}

TEST_F(ConnectionTest, TheLowestPageOfALogTellsWhetherItWasHalfTakenIn) {
    KillTheEarlierVersion("UPDATE FOODS SET Calories = 1 WHERE ID = 300;"
                          "UPDATE FOODS SET Calories = 1 WHERE ID = 1");
    const std::map<quint32, QByteArray> pages = PagesOfLog();
    ASSERT_GT(pages.size(), 1U);
    QByteArray half = Contents(File("killed.mdb"));
    const auto& [lowest, page] = *pages.begin();
    half.replace(qsizetype(lowest - 1) * page.size(), page.size(), page);
    PutInPlaceOfKilled(half, "-wal");
    Connection killed;
    killed.Open(File("killed.mdb"), DatabaseKind::Foods);
    EXPECT_EQ(First(killed, "SELECT count(*) FROM FOODS WHERE Calories = 1"), 2);
}

TEST_F(ConnectionTest, ALogWhoseFirstPageWasTakenInIsTakenInAgain) {
    KillTheEarlierVersion("BEGIN; PRAGMA schema_version = 4711;"
                          "UPDATE FOODS SET Calories = 1 WHERE ID = 300; COMMIT");
    QByteArray half = Contents(File("killed.mdb"));
    const QByteArray first = PagesOfLog().at(1);
    half.replace(0, first.size(), first);
    PutInPlaceOfKilled(half, "-wal");
    Connection killed;
    killed.Open(File("killed.mdb"), DatabaseKind::Foods);
    EXPECT_EQ(First(killed, "SELECT count(*) FROM FOODS WHERE Calories = 1"), 1);
}

TEST_F(ConnectionTest, ALogOfOneFrameWasTakenInIfItsPageIsInTheFile) {
    KillAfterTheOnlyFrameWasTakenIn();
    Connection killed;
    killed.Open(File("killed.mdb"), DatabaseKind::Foods);
    EXPECT_EQ(First(killed, "SELECT count(*) FROM FOODS WHERE Calories = 1"), 1);
}

TEST_F(ConnectionTest, AFrameThatIsCutBehindItsHeaderDoesNotCount) {
    QByteArray header = KillAfterTheOnlyFrameWasTakenIn();
    qToBigEndian<quint32>(1, header.data()); // would be the lowest page
    QFile log(File("killed.mdb-wal"));
    ASSERT_TRUE(log.open(QIODevice::Append));
    ASSERT_EQ(log.write(header), header.size());
    log.close();
    MoveLater(File("killed.mdb"), File("killed.mdb-wal"));
    Connection killed;
    killed.Open(File("killed.mdb"), DatabaseKind::Foods);
    EXPECT_EQ(First(killed, "SELECT count(*) FROM FOODS WHERE Calories = 1"), 1);
}

TEST_F(ConnectionTest, AJournalThatMayOnlyBeReadIsTriedOnACopy) {
    KillInTheMiddleOfAWrite();
    for (const char* ending : {"", "-journal"})
        ASSERT_TRUE(QFile::setPermissions(File("killed.mdb") + ending, NoWriting));
    ASSERT_TRUE(QFile::setPermissions(folder_.path(), All));
    const OrdinaryUser user;
    EXPECT_TRUE(LeftJournal(File("killed.mdb")).ChangesTheFile());
}

TEST_F(ConnectionTest, AJournalThatWouldDamageTheFileIsLeftAlone) {
    KillInTheMiddleOfAWrite("ID > 0", "PRAGMA application_id = 1");
    QByteArray journal = Contents(File("killed.mdb-journal"));
    constexpr qsizetype header = 512, number = 4, page = 4096, sum = 4, kindOfPage = 100;
    qsizetype record = header;
    while (qFromBigEndian<quint32>(journal.constData() + record) != 1)
        record += number + page + sum;
    journal[record + number + kindOfPage] = 0; // its sum looks at every 200th byte only
    Write(File("killed.mdb-journal"), journal);
    ExpectSetAside("-journal");
}

TEST_F(ConnectionTest, AFileCutShortBesideAJournalIsRefused) {
    foods_.Open(FoodsFile(), DatabaseKind::Foods);
    foods_.Close();
    Write(FoodsFile(), sound_.first(sound_.size() / 2));
    Write(FoodsFile() + "-wal", QByteArray(10000, 'x'));
    EXPECT_EQ(ErrorOf([&] { foods_.Open(FoodsFile(), DatabaseKind::Foods); }), Corrupt);
    EXPECT_EQ(Contents(FoodsFile()).size(), sound_.size() / 2);
}

TEST_F(ConnectionTest, DamageBehindTheSchemaFailsAtTheStatement) {
    QByteArray damaged = sound_;
    damaged.replace(4096 * 2, damaged.size() - 4096 * 2,
                    QByteArray(damaged.size() - 4096 * 2, '\x7F'));
    Write(FoodsFile(), damaged);
    foods_.Open(FoodsFile(), DatabaseKind::Foods);
    EXPECT_EQ(ErrorOf([&] { Recordset(foods_, "SELECT * FROM FOODS"); }), Corrupt);
}

TEST_F(ConnectionTest, TheTwoConnectionsOfTheProcessAreApart) {
    EXPECT_EQ(UserDB().state(), Connection::Closed);
    UserDB().Open(UsersFile(), DatabaseKind::Users);
    EXPECT_EQ(FoodDB().state(), Connection::Closed);
    FoodDB().Open(FoodsFile(), DatabaseKind::Foods);
    EXPECT_EQ(Recordset(UserDB(), "SELECT * FROM profiles").RecordCount(), 0);
    EXPECT_EQ(Recordset(FoodDB(), "SELECT * FROM FOODS").RecordCount(), 300);
    UserDB().Close();
    FoodDB().Close();
}

TEST_F(ConnectionTest, EveryWordingNamesTheFile) {
    for (int code = 1; code <= 28; ++code) {
        const RuntimeError error = StoreError::Make(code, "folder/users.mdb", "why %1 %2");
        EXPECT_EQ(error.Number(), -code);
        EXPECT_TRUE(error.Description().contains("users.mdb")) << code;
    }
    EXPECT_EQ(StoreError::Make(14 | (3 << 8), "x", "why").Number(), -14);
    EXPECT_TRUE(StoreError::Make(14, "x%2", "why").Description().contains("x%2"));
}

TEST_F(ConnectionTest, AFailureTellsNoMoreThan80CharactersOfItsDetail) {
    const auto text = [](int length) {
        return StoreError::Make(1, "x", QString(length, u'a')).Description();
    };
    EXPECT_TRUE(text(80).contains(QString(80, u'a')));
    EXPECT_FALSE(text(80).contains("..."));
    EXPECT_TRUE(text(81).contains(QString(80, u'a') + "..."));
    EXPECT_FALSE(text(81).contains(QString(81, u'a')));
}
