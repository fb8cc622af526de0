#include "disk/DiskTest.h"
#include "disk/DiskWatch.h"
#include "support/RunSize.h"

#include <QRandomGenerator>
#include <QSet>

#include <iostream>

#include <sqlite3.h>

namespace {
constexpr int FewCuts = 25;
constexpr unsigned Seed = 20261122;
constexpr int KillsInTen = 1;   ///< so many of ten cuts are kills
constexpr int MostRepeats = 20; ///< of a disk that was tried already

/// The environment variable HALVANE_CUTS asks for more cuts of each routine.
int Cuts() {
    return RunSize("HALVANE_CUTS", FewCuts);
}

unsigned FirstSeed() {
    return Seed + unsigned(qEnvironmentVariableIntValue("HALVANE_CUT_SEED"));
}

/// While it lives, the store has no room for the pages of a change: it writes them to the disk
/// before the commit.
class NoRoom {
public:
    NoRoom() { sqlite3_soft_heap_limit64(1); }
    ~NoRoom() { sqlite3_soft_heap_limit64(0); }
    NoRoom(const NoRoom&) = delete;
    NoRoom& operator=(const NoRoom&) = delete;
};

DiskImage AfterAny(const DiskAtCut& disk, QRandomGenerator& random) {
    return random.bounded(10) < KillsInTen ? disk.AfterKill() : disk.AfterCut(random);
}

/// A disk as it may be after a cut at any moment of the trace.
DiskImage AnyCutOf(const DiskTrace& trace, QRandomGenerator& random) {
    DiskAtCut disk(trace.before);
    const int steps = random.bounded(int(trace.steps.size()) + 1);
    for (int step = 0; step < steps; ++step)
        disk.Take(trace.steps[size_t(step)]);
    return AfterAny(disk, random);
}
} // namespace

class PowerCutTest : public DiskTest {
protected:
    /// The next start after a cut, and the one after that if a cut comes during the first.
    QByteArrayList FoundByTwoStarts(const DiskImage& image, QRandomGenerator& random) {
        image.PutInto(Watched());
        DiskTrace start;
        QByteArrayList found;
        {
            const DiskWatch watch(Watched());
            found << Found();
            start = watch.Trace();
        }
        return found << Found(AnyCutOf(start, random));
    }

    /// After a cut the records are in a state that the routine has reached, and in none that is
    /// older than the last one that was acknowledged.
    void CutOnce(unsigned seed) {
        QRandomGenerator random(seed);
        const auto cut = size_t(random.bounded(int(moments_.size())));
        const Moment& moment = moments_[cut];
        const DiskImage image = AfterAny(moment.disk, random);
        const size_t hash = qHashMulti(0, image.Hash(), moment.acknowledged);
        if (seen_.contains(hash))
            return;
        seen_.insert(hash);
        for (const QByteArray& found : FoundByTwoStarts(image, random))
            EXPECT_TRUE(states_.mid(moment.acknowledged).contains(found))
                << "cut after step " << cut << " of " << moments_.size() - 1 << ", seed " << seed
                << ": state " << states_.indexOf(found) << ", acknowledged is "
                << moment.acknowledged << '\n'
                << found.left(300).constData();
    }

    void CutOften() {
        ASSERT_NO_FATAL_FAILURE(PassThrough());
        unsigned seed = FirstSeed();
        for (int i = 0; seen_.size() < Cuts() && i < MostRepeats * Cuts() && !HasFailure(); ++i)
            CutOnce(seed++);
        std::cout << GetParam().name << ": " << moments_.size() - 1 << " steps, "
                  << 2 * seen_.size() << " replays\n";
    }

private:
    QSet<size_t> seen_;
};

TEST_P(PowerCutTest, LeavesEveryAcknowledgedRowAndNoHalfOfAChange) {
    CutOften();
}

TEST_P(PowerCutTest, LeavesTheSameIfPagesWereWrittenBeforeTheCommit) {
    const NoRoom noRoom;
    CutOften();
}

INSTANTIATE_TEST_SUITE_P(EveryRoutine, PowerCutTest, ::testing::ValuesIn(WritingRoutines::All()),
                         NameOfRoutine);
