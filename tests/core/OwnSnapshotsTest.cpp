#include "core/CoreTest.h"

#include "core/Flow.h"
#include "core/HeldRecords.h"
#include "core/Navigation.h"
#include "core/frmHOME.h"
#include "records/RecordsLock.h"
#include "records/SnapshotMaking.h"
#include "records/Snapshots.h"
#include "runtime/AppPath.h"
#include "runtime/Seams.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "store/Connection.h"
#include "support/Places.h"

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QProcess>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

/// The snapshots that the program makes by itself, and the lock of the records.
class OwnSnapshotsTest : public CoreTest {
protected:
    void SetUp() override {
        CoreTest::SetUp();
        AddLoggedScreen(QStringLiteral("frmMain"), QStringLiteral("Main"));
        Deliver();
        SetRegValue(Settings::Agreement, "YES");
        UserDB().Open(Records().Users(), DatabaseKind::Users);
        AddUser();
        CloseDatabases();
    }
    RecordsFolder Records() const { return RecordsFolder(Folder()); }
    QList<Snapshot> All() const { return Snapshots(Records()).All(); }
    bool HasMade(qsizetype count) const {
        return QTest::qWaitFor([&] { return All().size() >= count; }, 10'000);
    }
    void StartAgain() {
        Flow::QuitApp();
        TheNavigation().Reset();
        RunDeferredDeletes();
        AddLoggedScreen(QStringLiteral("frmMain"), QStringLiteral("Main"));
        ASSERT_EQ(RunMain(), 0);
    }
    void MakePlaceImpossible(bool impossible) const {
        const QString data = qEnvironmentVariable("XDG_DATA_HOME");
        QDir(data).removeRecursively();
        QFile blocked(data);
        if (impossible)
            ASSERT_TRUE(blocked.open(QIODevice::WriteOnly));
        else
            blocked.remove();
    }
    void ChangeUsers(const char* sql) const {
        SQLite::Database(Records().Users().toStdString(), SQLite::OPEN_READWRITE).exec(sql);
    }
    /// A program that holds the lock. Its name makes it a command.
    QString Command() const {
        const QString program = Folder() + "/halvane-data";
        EXPECT_TRUE(QFile::copy(Places::Build(QStringLiteral("/tests/lock_holder")), program));
        return program;
    }
    void Damage() const {
        QFile file(Records().Users());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.write(QByteArray(4096, '\x55'));
    }
    /// The text of the message that the failing start shows.
    QString MessageOfStart() {
        QString text;
        answers[QString()] = [&](QWidget* window) {
            text = qobject_cast<QMessageBox*>(window)->text();
            window->close();
        };
        EXPECT_EQ(RunMain(), 1);
        return text;
    }
};

TEST_F(OwnSnapshotsTest, TheFirstStartOfADayMakesOneAfterTheFrameIsPainted) {
    ASSERT_EQ(RunMain(), 0);
    EXPECT_TRUE(All().isEmpty());
    ASSERT_TRUE(HasMade(1));
    EXPECT_EQ(All().first().kind, SnapshotKind::Daily);
    EXPECT_NO_THROW(All().first().RequireSound());
    EXPECT_EQ(All().first().counts.ToJson()["profiles"], 1);
}

TEST_F(OwnSnapshotsTest, TheSecondStartOfADayMakesNone) {
    ASSERT_EQ(RunMain(), 0);
    ASSERT_TRUE(HasMade(1));
    StartAgain();
    QTest::qWait(300);
    EXPECT_EQ(All().size(), 1);
}

TEST_F(OwnSnapshotsTest, AStartWithoutAProfileMakesNone) {
    ChangeUsers("DELETE FROM profiles");
    ASSERT_EQ(RunMain(), 0);
    QTest::qWait(300);
    EXPECT_TRUE(All().isEmpty());
}

TEST_F(OwnSnapshotsTest, QuittingWhileOneIsMadeWaitsForItAndLeavesNothingBesideTheFiles) {
    const QStringList files = QDir(Folder()).entryList(QDir::Files);
    ASSERT_EQ(RunMain(), 0);
    QTest::qWait(1);
    Flow::QuitApp();
    TheNavigation().Reset();
    RunDeferredDeletes();
    const QStringList left = QDir(Folder()).entryList(QDir::Files);
    EXPECT_EQ(left, files);
    for (const Snapshot& snapshot : All())
        EXPECT_NO_THROW(snapshot.RequireSound());
}

TEST_F(OwnSnapshotsTest, WhereNoneCanBeMadeThatIsSaidOnceUntilOneSucceeds) {
    QStringList said;
    TheSeams().ShowAlert = [&](const QString& message, QObject*, bool) {
        said << message;
        return true;
    };
    MakePlaceImpossible(true);
    ASSERT_EQ(RunMain(), 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !said.isEmpty(); }));
    EXPECT_TRUE(said.first().startsWith("Halvane cannot make a snapshot."))
        << said.first().toStdString();
    EXPECT_TRUE(said.first().contains("data")) << "names the folder";
    StartAgain();
    QTest::qWait(300);
    EXPECT_EQ(said.size(), 1);
    MakePlaceImpossible(false);
    StartAgain();
    ASSERT_TRUE(HasMade(1));
    ASSERT_TRUE(QTest::qWaitFor([] { return GetRegValue(Settings::Snapshots).isEmpty(); }));
    MakePlaceImpossible(true);
    StartAgain();
    EXPECT_TRUE(QTest::qWaitFor([&] { return said.size() == 2; }));
}

TEST_F(OwnSnapshotsTest, FilesOfAnOlderVersionAreKeptBeforeTheyAreUpdated) {
    ChangeUsers("PRAGMA user_version = 1");
    ASSERT_EQ(RunMain(), 0);
    ASSERT_EQ(All().size(), 1);
    EXPECT_EQ(All().first().kind, SnapshotKind::Upgrade);
    SQLite::Database kept(All().first().Files().Users().toStdString());
    EXPECT_EQ(kept.execAndGet("PRAGMA user_version").getInt(), 1);
}

TEST_F(OwnSnapshotsTest, AnOlderFileThatCannotBeKeptStartsAllTheSame) {
    ChangeUsers("PRAGMA user_version = 1");
    MakePlaceImpossible(true);
    bool said = false;
    TheSeams().ShowAlert = [&](const QString&, QObject*, bool) { return said = true; };
    ASSERT_EQ(RunMain(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return said; }));
    EXPECT_EQ(UserDB().state(), Connection::Opened);
}

TEST_F(OwnSnapshotsTest, AStartWithADamagedFileNamesTheNewestSoundSnapshotAndTheCommand) {
    SnapshotMaking(Records(), Snapshots(Records()).Place()).Make(SnapshotKind::Manual, "backup");
    const QString when = All().first().When();
    Damage();
    const QString text = MessageOfStart();
    EXPECT_TRUE(text.contains("users.mdb")) << text.toStdString();
    EXPECT_TRUE(text.contains(when)) << text.toStdString();
    EXPECT_TRUE(text.endsWith("halvane-data restore 1")) << text.toStdString();
    const QStringList lines = stderrText.split('\n').filter("users.mdb");
    ASSERT_EQ(lines.size(), 1) << stderrText.toStdString();
    EXPECT_TRUE(lines.first().endsWith("halvane-data restore 1")) << stderrText.toStdString();
}

TEST_F(OwnSnapshotsTest, AStartWithoutOneOfTheFilesNamesTheSnapshotToo) {
    SnapshotMaking(Records(), Snapshots(Records()).Place()).Make(SnapshotKind::Manual, "backup");
    QFile::remove(Records().Foods());
    EXPECT_TRUE(MessageOfStart().endsWith("halvane-data restore 1"));
}

TEST_F(OwnSnapshotsTest, TheLockIsHeldFromStartToQuit) {
    ASSERT_EQ(RunMain(), 0);
    EXPECT_TRUE(RecordsLock::IsHeld(Records()));
    Flow::QuitApp();
    EXPECT_FALSE(RecordsLock::IsHeld(Records()));
    EXPECT_FALSE(QFile::exists(Records().Lock()));
}

TEST_F(OwnSnapshotsTest, BesideAnotherWindowTheProgramGoesOn) {
    const RecordsLock other(Records());
    EXPECT_EQ(RunMain(), 0);
    EXPECT_TRUE(Flow::HasWindow());
}

TEST_F(OwnSnapshotsTest, ACommandThatGoesOnChangingTheRecordsEndsTheStartWithASentence) {
    QProcess command;
    command.start(Command(), {Folder()});
    ASSERT_TRUE(command.waitForReadyRead());
    EXPECT_EQ(MessageOfStart(),
              "A halvane-data command is changing these records. Wait until it is done.");
    EXPECT_EQ(endings, QList<int>{1});
    command.kill();
    ASSERT_TRUE(command.waitForFinished());
}

TEST_F(OwnSnapshotsTest, ACommandThatIsSoonDoneIsAwaited) {
    QProcess command;
    command.start(Command(), {Folder(), "300"});
    ASSERT_TRUE(command.waitForReadyRead());
    EXPECT_EQ(RunMain(), 0);
    EXPECT_TRUE(Flow::HasWindow());
    EXPECT_TRUE(QTest::qWaitFor([&] { return command.state() == QProcess::NotRunning; }));
}
