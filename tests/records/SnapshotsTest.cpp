#include "SnapshotTest.h"

#include "records/Disk.h"
#include "records/RecordsChange.h"
#include "records/RecordsLock.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "support/Failure.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <filesystem>
#include <thread>

class SnapshotsTest : public SnapshotTest {
protected:
    static auto Links(const QString& path) {
        return std::filesystem::hard_link_count(path.toStdString());
    }
    int Count(SnapshotKind kind) const {
        return int(std::ranges::count(All().All(), kind, &Snapshot::kind));
    }
};

TEST_F(SnapshotsTest, ASnapshotHoldsBothFilesTheSettingsAndTheCounts) {
    AddWeight("2002-03-04", 150);
    AddOwnFood("Pie");
    SetRegValue(Settings::FromEmail, "anna@example.org");
    const Snapshot made = Make();
    EXPECT_EQ(Rows(made.Files()), Rows(Records()));
    const auto read = Snapshot::Read(made.path);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->settings[Settings::FromEmail], "anna@example.org");
    EXPECT_EQ(read->counts.Text(),
              "1 profile, 0 logged foods, 1 weight, 1 own food, 0 recipes, 0 ingredients");
    EXPECT_EQ(read->counts, made.counts);
    EXPECT_EQ(read->moment, made.moment);
    EXPECT_EQ(read->source, RecordsState::Of(Records()));
    EXPECT_NO_THROW(read->RequireSound());
}

TEST_F(SnapshotsTest, TheyLieInTheDataFolderOfTheUserAndNothingIsLeftBesideTheRecords) {
    const QStringList before = QDir(Folder()).entryList(QDir::Files);
    const Snapshot made = Make();
    EXPECT_TRUE(
        made.path.startsWith(qEnvironmentVariable("XDG_DATA_HOME") + "/halvane/snapshots/"));
    EXPECT_EQ(QDir(Folder()).entryList(QDir::Files), before);
    EXPECT_EQ(Bytes(All().Place() + "/folder.txt"), QDir(Folder()).absolutePath().toUtf8() + '\n');
    EXPECT_EQ(QDir(made.path).entryList(QDir::Files | QDir::Hidden),
              (QStringList{"foods.mdb", "snapshot.json", "users.mdb"}));
}

TEST_F(SnapshotsTest, WhileAnotherProgramWritesTheLastCommitIsTaken) {
    const RecordsLock window(Records());
    SQLite::Database writer(Records().Users().toStdString(), SQLite::OPEN_READWRITE);
    writer.exec("INSERT INTO USER_WEIGHTS VALUES (1, '2002-03-04', 150)");
    writer.exec("BEGIN IMMEDIATE; INSERT INTO USER_WEIGHTS VALUES (1, '2002-03-05', 151)");
    EXPECT_EQ(Make().counts.ToJson()["weights"], 1);
    writer.exec("COMMIT");
}

TEST_F(SnapshotsTest, AFileThatHasNotChangedIsSharedWithTheSnapshotBefore) {
    const Snapshot first = Make();
    AddWeight("2002-03-04", 150);
    const Snapshot second = Make();
    EXPECT_EQ(Links(second.Files().Foods()), 2u);
    EXPECT_EQ(Links(second.Files().Users()), 1u);
    Disk::RemoveFolder(first.path);
    EXPECT_NO_THROW(second.RequireSound());
}

TEST_F(SnapshotsTest, TheNewestIsTheFirst) {
    const Snapshot first = Make();
    const Snapshot second = Make();
    const QList<Snapshot> all = All().All();
    ASSERT_EQ(all.size(), 2);
    EXPECT_EQ(all[0].path, second.path);
    EXPECT_EQ(All().NumberOf(first), 2);
    EXPECT_EQ(All().Find("2").path, first.path);
    EXPECT_EQ(All().Find("latest").path, second.path);
    EXPECT_EQ(All().Find(first.path).path, first.path);
}

TEST_F(SnapshotsTest, TheLatestIsNotWhatARestoreHasReplaced) {
    const Snapshot first = Make();
    Make(SnapshotKind::Replaced);
    EXPECT_EQ(All().Find("latest").path, first.path);
}

TEST_F(SnapshotsTest, WhatIsNotInTheListCannotBeFound) {
    Make();
    for (const char* which : {"0", "2", "-1", "yesterday", "/nowhere", ""})
        EXPECT_EQ(FailureOf([&] { All().Find(which); }), ErrorNumber::NoSuchElement) << which;
}

TEST_F(SnapshotsTest, ACopyOfTheTwoFilesMadeByHandCountsAsOne) {
    const QString copy = Folder() + "/copy";
    QDir().mkpath(copy);
    QFile::copy(Records().Users(), copy + "/users.mdb");
    QFile::copy(Records().Foods(), copy + "/foods.mdb");
    const Snapshot found = All().Find(copy);
    EXPECT_EQ(found.kind, SnapshotKind::Manual);
    EXPECT_EQ(found.counts.ToJson()["profiles"], 1);
}

TEST_F(SnapshotsTest, WhatAKilledProgramHasHalfMadeIsNoSnapshotAndGoesNextTime) {
    const QString half = All().Place() + "/.making-20261122T051033123Z-daily";
    ASSERT_TRUE(QDir().mkpath(half));
    QFile::copy(Records().Users(), half + "/users.mdb");
    EXPECT_TRUE(All().All().isEmpty());
    Make();
    EXPECT_FALSE(QFile::exists(half));
    EXPECT_EQ(All().All().size(), 1);
}

TEST_F(SnapshotsTest, WhatAKilledProgramHasHalfRemovedIsNoSnapshotAndGoesNextTime) {
    Make();
    const QString half = All().Place() + "/.removing-20261122T051033123Z-daily";
    ASSERT_TRUE(QDir().rename(All().All().first().path, half));
    EXPECT_TRUE(All().All().isEmpty());
    Make();
    EXPECT_FALSE(QFile::exists(half));
    EXPECT_EQ(All().All().size(), 1);
}

TEST_F(SnapshotsTest, OneThatAnotherProgramHasRemovedIsGoneWithoutAComplaint) {
    const Snapshot snapshot = Make();
    Snapshots::Remove(snapshot);
    EXPECT_TRUE(All().All().isEmpty());
    EXPECT_NO_THROW(Snapshots::Remove(snapshot));
}

TEST_F(SnapshotsTest, AnIndexThatLacksRowsDoesNotKeepThemFromBeingKept) {
    AddWeight("2026-11-21", 150);
    SpoilIndex();
    const Snapshot snapshot = Make();
    EXPECT_EQ(snapshot.counts.ToJson()["weights"], 1);
    EXPECT_NO_THROW(snapshot.RequireSound());
}

TEST_F(SnapshotsTest, ADamagedFileGivesNoSnapshot) {
    Damage(Records().Users(), 8192);
    EXPECT_EQ(FailureOf([&] { Make(); }), -SQLITE_CORRUPT);
    EXPECT_TRUE(All().All().isEmpty());
    EXPECT_TRUE(
        QDir(All().Place()).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
}

TEST_F(SnapshotsTest, TwoThreadsMakeTwoWholeSnapshots) {
    std::thread other([&] { Make(); });
    Make();
    other.join();
    const QList<Snapshot> all = All().All();
    ASSERT_EQ(all.size(), 2);
    for (const Snapshot& snapshot : all)
        EXPECT_NO_THROW(snapshot.RequireSound());
}

TEST_F(SnapshotsTest, WhereThePlaceCannotBeMadeThePathIsNamed) {
    QFile file(Folder() + "/blocked");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    try {
        SnapshotMaking(Records(), Folder() + "/blocked/snapshots");
        FAIL();
    } catch (const RuntimeError& failure) {
        EXPECT_TRUE(failure.Description().contains("blocked")) << failure.what();
    }
}

TEST_F(SnapshotsTest, TheNewestSoundOneIsBeforeADamagedOne) {
    const Snapshot sound = Make();
    AddWeight("2002-03-04", 150);
    const Snapshot damaged = Make();
    QFile::setPermissions(damaged.Files().Users(), QFile::ReadOwner | QFile::WriteOwner);
    Damage(damaged.Files().Users(), 4096);
    EXPECT_EQ(All().NewestSound()->path, sound.path);
}

TEST_F(SnapshotsTest, OfEachKindOnlySoManyAreKept) {
    const QDateTime now = QDateTime::currentDateTimeUtc();
    for (int i = 0; i < 14; ++i)
        for (const SnapshotKinds::Row& row : SnapshotKinds::Rows)
            Pretend(now.addDays(-i).addSecs(int(row.kind)), row.kind);
    All().Prune();
    EXPECT_EQ(Count(SnapshotKind::Change), 10);
    EXPECT_EQ(Count(SnapshotKind::Upgrade), 5);
    EXPECT_EQ(Count(SnapshotKind::Replaced), 5);
    EXPECT_EQ(Count(SnapshotKind::Manual), 14);
    EXPECT_LT(Count(SnapshotKind::Daily), 14);
    EXPECT_TRUE(All().HasDailyOf(now.toLocalTime().date()));
}

TEST_F(SnapshotsTest, WithoutItsNoteASnapshotOfOursHasTheKindAndTheMomentOfItsName) {
    const Snapshot made = Make(SnapshotKind::Change);
    Disk::Remove(made.path + "/snapshot.json");
    ASSERT_EQ(All().All().size(), 1);
    EXPECT_EQ(All().All().first().kind, SnapshotKind::Change);
    EXPECT_EQ(All().All().first().moment, made.moment);
}

TEST_F(SnapshotsTest, ADamagedNoteCountsAsALostOne) {
    const Snapshot made = Make(SnapshotKind::Change);
    for (const char* note : {"", "{\"moment\": 12", "{\"moment\": \"some day\"}", "[]"}) {
        Disk::Write(made.path + "/snapshot.json", note);
        ASSERT_EQ(All().All().size(), 1) << note;
        EXPECT_EQ(All().All().first().kind, SnapshotKind::Change) << note;
        EXPECT_EQ(All().All().first().moment, made.moment) << note;
        EXPECT_EQ(All().Find("latest").path, made.path) << note;
    }
}

TEST_F(SnapshotsTest, DamagedFilesWithoutANoteDoNotHinderOtherSnapshots) {
    const Snapshot made = Make(SnapshotKind::Change);
    Disk::Remove(made.path + "/snapshot.json");
    Disk::Remove(made.path + "/users.mdb");
    Disk::Write(made.path + "/users.mdb", QByteArray());
    EXPECT_NO_THROW(Make());
    EXPECT_EQ(All().All().size(), 2);
}

TEST_F(SnapshotsTest, BeforeFilesOfAnOlderVersionAreUpdatedTheyAreKept) {
    Change(Records().Users(), "PRAGMA user_version = 1");
    { const RecordsChange change(Records()); }
    const QList<Snapshot> all = All().All();
    ASSERT_EQ(all.size(), 1);
    EXPECT_EQ(all.first().kind, SnapshotKind::Upgrade);
    EXPECT_EQ(Rows(all.first().Files()).filter(QRegularExpression("^1$")).size(), 1);
}
