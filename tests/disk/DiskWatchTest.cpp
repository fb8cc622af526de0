#include "disk/DiskWatch.h"
#include "disk/DiskAtCut.h"
#include "records/Disk.h"
#include "records/Snapshots.h"
#include "records/document/DocumentInput.h"
#include "records/recipefiles/RecipeFiles.h"
#include "runtime/RuntimeError.h"
#include "runtime/WholeFile.h"
#include "store/Connection.h"
#include "store/FileBytes.h"
#include "store/FileHeader.h"
#include "store/Schema.h"
#include "support/Failure.h"
#include "support/HalvaneTest.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRandomGenerator>

#include <SQLiteCpp/SQLiteCpp.h>

#include <filesystem>

#include <sqlite3.h>

namespace {
void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

/// Every path with its bytes.
QMap<QString, QByteArray> Files(const QString& folder) {
    QMap<QString, QByteArray> files;
    QDirIterator each(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (each.hasNext()) {
        QFile file(each.next());
        const QString name = QDir(folder).relativeFilePath(file.fileName());
        files[name] = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("folder");
    }
    return files;
}

DiskAtCut Whole(const DiskTrace& trace) {
    DiskAtCut disk(trace.before);
    for (const DiskStep& step : trace.steps)
        disk.Take(step);
    return disk;
}
} // namespace

/// A folder that is watched while something happens in it.
class DiskWatchTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        ASSERT_TRUE(QDir().mkpath(Place()));
    }
    QString Place() const { return Folder() + "/watched"; }
    QString Place(const char* name) const { return Place() + u'/' + QLatin1String(name); }
    DiskTrace TraceOf(const std::function<void()>& work) const {
        DiskWatch watch(Place());
        work();
        return watch.Trace();
    }
    /// The files after each of many power cuts.
    QList<QMap<QString, QByteArray>> AfterCuts(const DiskTrace& trace) const {
        constexpr int cuts = 60;
        QRandomGenerator random(1);
        QList<QMap<QString, QByteArray>> found;
        for (int i = 0; i < cuts; ++i) {
            Whole(trace).AfterCut(random).PutInto(Folder() + "/cut");
            found << Files(Folder() + "/cut");
        }
        return found;
    }
    static void Sync(const QString& path) { Disk::Sync(path); }
    /// Keeps a row.
    DiskTrace TraceOfRows(const char* synchronous) const {
        QFile::remove(Place("rows"));
        SQLite::Database(Place("rows").toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
            .exec("CREATE TABLE t (a)");
        return TraceOf([&] {
            SQLite::Database rows(Place("rows").toStdString(), SQLite::OPEN_READWRITE);
            rows.exec(std::string("PRAGMA synchronous = ") + synchronous);
            rows.exec("INSERT INTO t VALUES (1)");
        });
    }
    /// In how many of the cuts the acknowledged row is lost.
    int Lost(const DiskTrace& trace) const {
        constexpr int cuts = 60;
        QRandomGenerator random(1);
        int lost = 0;
        for (int i = 0; i < cuts; ++i) {
            Whole(trace).AfterCut(random).PutInto(Place());
            SQLite::Database rows(Place("rows").toStdString(), SQLite::OPEN_READWRITE);
            lost += rows.execAndGet("SELECT count(*) FROM t").getInt() == 0 ? 1 : 0;
        }
        return lost;
    }
};

TEST_F(DiskWatchTest, EveryWayToChangeAFileIsSeen) {
    Write(Place("before"), "was there");
    const DiskTrace trace = TraceOf([&] {
        namespace fs = std::filesystem;
        const fs::path folder = QFileInfo(Place()).filesystemFilePath();
        Write(Place("qt"), QByteArray(100'000, 'q'));
        fs::create_directories(folder / "deep" / "deeper");
        fs::copy_file(folder / "qt", folder / "deep" / "copy");
        fs::create_hard_link(folder / "qt", folder / "linked");
        fs::rename(folder / "deep", folder / "moved");
        fs::remove(folder / "before");
        fs::resize_file(folder / "linked", 5000);
        QFile::copy(Place("qt"), Place("copied"));
        QFile::rename(Place("copied"), Place("renamed"));
        ASSERT_TRUE(QDir().mkpath(Place("emptied/inside")));
        Write(Place("emptied/inside/file"), "gone");
        QDir(Place("emptied")).removeRecursively();
        SQLite::Database database(Place("database").toStdString(),
                                  SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        database.exec("CREATE TABLE t (a); INSERT INTO t VALUES (zeroblob(50000)); DELETE FROM t");
        database.exec("VACUUM");
    });
    Whole(trace).AfterKill().PutInto(Folder() + "/again");
    const auto again = Files(Folder() + "/again");
    const auto files = Files(Place());
    EXPECT_EQ(again.keys(), files.keys());
    for (const QString& name : files.keys())
        EXPECT_TRUE(again[name] == files[name]) << name.toStdString();
}

TEST_F(DiskWatchTest, WhatIsNotSyncedCanBeLostOrTornAndWhatIsSyncedStays) {
    Write(Place("file"), QByteArray(1024, 'a'));
    const auto write = [&] { Write(Place("file"), QByteArray(1024, 'b')); };
    const auto cuts = AfterCuts(TraceOf(write));
    QSet<QByteArray> found;
    for (const auto& files : cuts)
        found << files["file"];
    EXPECT_TRUE(found.contains(QByteArray(1024, 'a'))) << "lost";
    EXPECT_TRUE(found.contains(QByteArray(1024, 'b'))) << "kept";
    EXPECT_TRUE(found.contains(QByteArray(512, 'b'))) << "torn";
    for (const auto& files : AfterCuts(TraceOf([&] {
             write();
             Sync(Place("file"));
         })))
        EXPECT_EQ(files["file"], QByteArray(1024, 'b'));
}

TEST_F(DiskWatchTest, AFileWithoutANameIsWatchedNoMore) {
    const DiskTrace trace = TraceOf([&] {
        for (const bool isReplaced : {false, true}) {
            QFile file(Place("file"));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
            Write(Place("other"), "other");
            isReplaced ? Disk::Move(Place("other"), Place("file")) : Disk::Remove(Place("file"));
            file.write("as another file does that gets its number");
        }
    });
    EXPECT_EQ(std::ranges::count(trace.steps, DiskStep::Write, &DiskStep::kind), 2);
}

TEST_F(DiskWatchTest, ANameIsSafeOnceItsFolderIsSynced) {
    Write(Place("old"), "bytes");
    const auto move = [&] { Disk::Move(Place("old"), Place("new")); };
    QSet<QString> names;
    for (const auto& files : AfterCuts(TraceOf(move)))
        names << files.keys().join(u',');
    EXPECT_EQ(names, (QSet<QString>{"old", "new"}));
    Write(Place("old"), "bytes");
    for (const auto& files : AfterCuts(TraceOf([&] {
             move();
             Sync(Place());
         })))
        EXPECT_EQ(files.keys(), QStringList{"new"});
}

TEST_F(DiskWatchTest, FoldersThatAreMadeSurviveAPowerCut) {
    for (const auto& files : AfterCuts(TraceOf([&] { Disk::MakeFolders(Place("a/b/c")); })))
        EXPECT_EQ(files.keys(), (QStringList{"a", "a/b", "a/b/c"}));
}

TEST_F(DiskWatchTest, WithoutASyncOfTheFolderAJournalComesBackAndUndoesARow) {
    EXPECT_GT(Lost(TraceOfRows("OFF")), 0);
    EXPECT_GT(Lost(TraceOfRows("FULL")), 0);
    EXPECT_EQ(Lost(TraceOfRows("EXTRA")), 0);
}

TEST_F(DiskWatchTest, ACopyThatADiskCutsShortIsAFailure) {
    Write(Place("file"), QByteArray(100'000, 'a'));
    DiskWatch watch(Place());
    for (int at = 1; at < 4; ++at) {
        watch.Plan({FaultKind::ShortWrite, at, true});
        EXPECT_EQ(FailureOf([&] { Disk::Copy(Place("file"), Place("copy")); }),
                  ErrorNumber::FileAccess)
            << at;
    }
}

TEST_F(DiskWatchTest, AShortWriteIsGoneOnWithAndChangesNoByte) {
    QByteArray bytes;
    for (int i = 0; i < 100'000; ++i)
        bytes += char(i % 251);
    Write(Place("file"), bytes);
    DiskWatch watch(Place());
    for (int at = 1; at < 30; ++at) {
        watch.Plan({FaultKind::ShortWrite, at, false});
        EXPECT_EQ(FailureOf([&] { Disk::Copy(Place("file"), Place("copy")); }), 0) << at;
        EXPECT_TRUE(Files(Place())["copy"] == bytes) << at;
    }
}

TEST_F(DiskWatchTest, AFileThatTheDiskCannotReadIsNotCalledEmpty) {
    const QString users = Place("users.mdb");
    Schema::Create(users, DatabaseKind::Users);
    DiskWatch watch(Place());
    watch.Plan({FaultKind::InputOutput, 2, false}); // the first call opens the file
    EXPECT_EQ(FailureOf([&] { FileHeader::Of(users); }), -SQLITE_IOERR);
}

TEST_F(DiskWatchTest, AFileThatTheDiskCannotReadIsEqualToNone) {
    for (const char* name : {"one", "other"})
        Write(Place(name), QByteArray(3 << 20, 'a'));
    EXPECT_TRUE(FileBytes::Same(Place("one"), Place("other")));
    DiskWatch watch(Place());
    for (int at = 1; at < 9; ++at) {
        watch.Plan({FaultKind::InputOutput, at, true});
        EXPECT_FALSE(FileBytes::Same(Place("one"), Place("other"))) << at;
    }
}

TEST_F(DiskWatchTest, AFileThatIsReadInPartIsRefused) {
    const QString path = Place("file");
    Write(path, "[]\n");
    const std::function<void()> readers[] = {[&] { WholeFile(path); },
                                             [&] { RecipeFiles::Read(path); },
                                             [&] {
                                                 DocumentInput input(path);
                                                 EXPECT_FALSE(input.begin() == input.end());
                                             }};
    DiskWatch watch(Place());
    for (const auto& read : readers) {
        watch.Plan({FaultKind::InputOutput, 2, true}); // the first call opens the file
        EXPECT_EQ(FailureOf(read), ErrorNumber::FileAccess);
    }
}

TEST_F(DiskWatchTest, ASnapshotWhoseFilesCannotBeRemovedIsNotListed) {
    ASSERT_TRUE(QDir().mkpath(Place("20261122T051033123Z-manual")));
    Write(Place("20261122T051033123Z-manual/snapshot.json"), "{}");
    Snapshot snapshot;
    snapshot.path = Place("20261122T051033123Z-manual");
    DiskWatch watch(Place());
    watch.Plan({FaultKind::Denied, 2, true}); // the first call gives it a hidden name
    EXPECT_EQ(FailureOf([&] { Snapshots::Remove(snapshot); }), 0);
    EXPECT_FALSE(QFile::exists(snapshot.path));
}
