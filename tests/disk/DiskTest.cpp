#include "disk/DiskTest.h"

#include "disk/DiskWatch.h"
#include "disk/RecordsContent.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"

#include <QDir>

#include <algorithm>

void DiskTest::SetUp() {
    HalvaneTest::SetUp();
    qputenv("XDG_DATA_HOME", QFile::encodeName(Watched() + "/data"));
    ASSERT_TRUE(QDir().mkpath(Watched() + "/data"));
    WritingRoutines::MakeGround(Ground());
    ground_ = DiskWatch(Watched()).Trace().before;
}

void DiskTest::PutGround() const {
    ground_.PutInto(Watched());
    if (GetParam().prepare)
        GetParam().prepare(Ground());
}

void DiskTest::Run() const {
    if (GetParam().isOfWindow)
        WritingRoutines::OpenAsWindow(Ground());
    GetParam().run(Ground());
}

DiskTrace DiskTest::Trace() {
    PutGround();
    DiskWatch watch(Watched());
    Run();
    watch.Mark();
    CloseDatabases();
    return watch.Trace();
}

void DiskTest::PassThrough() {
    const DiskTrace trace = Trace();
    DiskAtCut disk(trace.before);
    moments_.push_back({disk, StateOf(disk.AfterKill())});
    for (const DiskStep& step : trace.steps) {
        disk.Take(step);
        moments_.push_back({disk, StateOf(disk.AfterKill()), moments_.back().acknowledged});
        if (step.kind == DiskStep::Mark)
            moments_.back().acknowledged = moments_.back().state;
    }
    ASSERT_EQ(states_.size(), GetParam().commits + 1);
    for (const QByteArray& state : states_)
        ASSERT_FALSE(state.startsWith("refused")) << state.constData();
}

QByteArray DiskTest::Found() const {
    try {
        return RecordsContent::Of(Ground().records);
    } catch (const RuntimeError& failure) {
        return "refused: " + failure.Description().toUtf8();
    }
}

QByteArray DiskTest::Found(const DiskImage& image) const {
    image.PutInto(Watched());
    return Found();
}

int DiskTest::StateOf(const DiskImage& image) {
    const QByteArray found = Found(image);
    if (states_.isEmpty() || states_.last() != found)
        states_ << found;
    return int(states_.size()) - 1;
}

void PrintTo(const WritingRoutine& routine, std::ostream* out) {
    *out << routine.name;
}

std::string NameOfRoutine(const ::testing::TestParamInfo<WritingRoutine>& routine) {
    std::string name = routine.param.name;
    std::ranges::replace(name, ' ', '_');
    return name;
}
