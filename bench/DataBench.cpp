#include "Ground.h"
#include "Table.h"

#include "core/OwnSnapshots.h"
#include "intake/DayLog.h"
#include "records/Disk.h"
#include "records/RecordsChange.h"
#include "records/RecordsCheck.h"
#include "records/SnapshotMaking.h"
#include "records/Snapshots.h"
#include "records/Undo.h"
#include "runtime/AppPath.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QWidget>

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <chrono>

namespace {
constexpr auto Backup = "backup of ten years, checked";
constexpr auto Check = "check of ten years";
constexpr auto Change = "a change by a command, with its snapshot";
constexpr auto TakeBack = "undo of a change";
constexpr auto Window = "longest stop of the window for its snapshot";

RecordsFolder Records() {
    return RecordsFolder(ApplicationPath());
}

void BackupOurs(benchmark::State& state) {
    const Ground ground(true);
    for (auto _ : state) {
        const QTemporaryDir place; // no older snapshot to share files with
        SnapshotMaking(Records(), place.path()).Make(SnapshotKind::Manual, {});
    }
}

/// A copy of the two files that survives a power cut.
void BackupLimit(benchmark::State& state) {
    const Ground ground(true);
    for (auto _ : state) {
        const QTemporaryDir place;
        for (const RecordsFile& file : RecordsFiles) {
            Disk::Copy(Records().File(file.name), RecordsFolder(place.path()).File(file.name));
            Disk::Sync(RecordsFolder(place.path()).File(file.name));
        }
        Disk::Sync(place.path());
    }
}

/// The records, which nobody has open.
void LayOutRecords(const Ground&) {
    UserDB().Close();
    FoodDB().Close();
}

void CheckOurs(benchmark::State& state) {
    const Ground ground(true);
    LayOutRecords(ground);
    for (auto _ : state)
        benchmark::DoNotOptimize(RecordsCheck(Records(), Ground::Day(Ground::Days - 1)));
}

void CheckLimit(benchmark::State& state) {
    const Ground ground(true);
    LayOutRecords(ground);
    for (auto _ : state)
        for (const RecordsFile& file : RecordsFiles) {
            SQLite::Database database(Records().File(file.name).toStdString());
            benchmark::DoNotOptimize(database.execAndGet("PRAGMA integrity_check").getString());
        }
}

void WeighIn(int weight) {
    RecordsChange change(Records(), QStringLiteral("weigh"));
    DayLog::SetWeight(Ground::Day(1), weight);
    change.Commit();
}

void ChangeOurs(benchmark::State& state) {
    const Ground ground(true);
    LayOutRecords(ground);
    int weight = 100;
    for (auto _ : state)
        WeighIn(++weight);
}

void UndoOurs(benchmark::State& state) {
    const Ground ground(true);
    LayOutRecords(ground);
    for (auto _ : state) {
        state.PauseTiming();
        WeighIn(100);
        state.ResumeTiming();
        Undo::Last(Records());
    }
}

/// The longest time for which the window does not answer while its snapshot is made.
double LongestStop() {
    QWidget window;
    const OwnSnapshots* snapshots = new OwnSnapshots(&window);
    window.show();
    QElapsedTimer clock;
    qint64 longest = 0;
    while (Snapshots(Records()).All().isEmpty()) {
        clock.start();
        QApplication::processEvents();
        longest = std::max(longest, clock.nsecsElapsed());
    }
    delete snapshots;
    return std::chrono::duration<double>(std::chrono::nanoseconds(longest)).count();
}

void WindowOurs(benchmark::State& state) {
    const Ground ground(true);
    for (auto _ : state) {
        state.SetIterationTime(LongestStop());
        for (const Snapshot& snapshot : Snapshots(Records()).All())
            Disk::RemoveFolder(snapshot.path);
    }
}

/// What a person takes for at once.
void AtOnce(benchmark::State& state) {
    constexpr double second = 0.1;
    for (auto _ : state)
        state.SetIterationTime(second);
}

[[maybe_unused]] const bool aims = [] {
    Table::Aim(Backup, 2);
    Table::Aim(Check, 2);
    for (const char* atOnce : {Change, TakeBack, Window})
        Table::Aim(atOnce, 1);
    return true;
}();
} // namespace

BENCHMARK(BackupOurs)->Name(std::string(Backup) + "/ours")->UseRealTime();
BENCHMARK(BackupLimit)->Name(std::string(Backup) + "/limit")->UseRealTime();
BENCHMARK(CheckOurs)->Name(std::string(Check) + "/ours")->UseRealTime();
BENCHMARK(CheckLimit)->Name(std::string(Check) + "/limit")->UseRealTime();
BENCHMARK(ChangeOurs)->Name(std::string(Change) + "/ours")->UseRealTime();
BENCHMARK(AtOnce)->Name(std::string(Change) + "/limit")->UseManualTime()->Iterations(1);
BENCHMARK(UndoOurs)->Name(std::string(TakeBack) + "/ours")->UseRealTime();
BENCHMARK(AtOnce)->Name(std::string(TakeBack) + "/limit")->UseManualTime()->Iterations(1);
BENCHMARK(WindowOurs)->Name(std::string(Window) + "/ours")->UseManualTime()->Iterations(3);
BENCHMARK(AtOnce)->Name(std::string(Window) + "/limit")->UseManualTime()->Iterations(1);
