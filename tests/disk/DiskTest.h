#pragma once

#include "disk/DiskAtCut.h"
#include "disk/WritingRoutines.h"
#include "support/HalvaneTest.h"

/// A writing routine, on records in a folder that is watched and can be put back as it was.
class DiskTest : public HalvaneTest, public ::testing::WithParamInterface<WritingRoutine> {
protected:
    /// One moment of the routine: before its first step, or after one.
    struct Moment {
        DiskAtCut disk;
        int state;            ///< of the records after a kill
        int acknowledged = 0; ///< the oldest state that may be found after a cut
    };

    void SetUp() override;

    QString Watched() const { return Folder() + "/disk"; }
    RoutineGround Ground() const { return {RecordsFolder(Watched() + "/records"), Folder()}; }
    /// The records on which every routine can run, and what this one needs beyond.
    void PutGround() const;
    /// Runs the routine as the program does, from the start on.
    void Run() const;
    /// Runs it once without a fault, and finds the states that the records go through.
    void PassThrough();

    /// What the next start finds.
    QByteArray Found() const;
    QByteArray Found(const DiskImage& image) const;

    std::vector<Moment> moments_;
    QByteArrayList states_;

private:
    DiskTrace Trace();
    int StateOf(const DiskImage& image);

    DiskImage ground_;
};

void PrintTo(const WritingRoutine& routine, std::ostream* out);
/// For the name of a test: letters and digits alone.
std::string NameOfRoutine(const ::testing::TestParamInfo<WritingRoutine>& routine);
