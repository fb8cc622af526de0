#include "disk/DiskTest.h"
#include "disk/DiskWatch.h"
#include "runtime/RuntimeError.h"

#include <QSet>

#include <algorithm>

#include <iostream>
#include <limits>

namespace {
constexpr int FewFaults = 3; ///< of each kind
constexpr auto NoChange = "There is no change of a command to take back.";
constexpr int Never = std::numeric_limits<int>::max();

/// With the environment variable HALVANE_FAULTS each call of a routine fails once.
int StepBetween(int calls) {
    return qEnvironmentVariableIsSet("HALVANE_FAULTS") ? 1 : std::max(1, calls / FewFaults);
}
} // namespace

/// A routine on a disk that fails at one call, or from that call on.
class DiskFaultTest : public DiskTest {
protected:
    struct End {
        int calls = 0;     ///< that could fail
        QString message{}; ///< of the failure; empty if the routine returned
    };

    End RunWith(const DiskFault& fault) {
        PutGround();
        DiskWatch watch(Watched());
        watch.Plan(fault);
        End end;
        try {
            Run();
        } catch (const RuntimeError& failure) {
            end.message = failure.Description();
        }
        CloseDatabases();
        end.calls = watch.Calls();
        return end;
    }

    /// What was acknowledged is there, nothing is half written, and the next start works.
    void Fail(const DiskFault& fault) {
        const End end = RunWith(fault);
        const QByteArray found = Found();
        const auto state = states_.indexOf(found);
        const bool holds = end.message.isEmpty() ? state == GetParam().commits : state >= 0;
        EXPECT_TRUE(holds) << Info(fault.kind).name << " at call " << fault.at
                           << (fault.lasts ? " and after it" : "") << ": state " << state << ", \""
                           << end.message.toStdString() << "\"\n"
                           << found.left(300).constData();
        EXPECT_TRUE(end.message.isEmpty() || end.message.contains(Folder()) ||
                    end.message == NoChange)
            << end.message.toStdString();
        ++(end.message.isEmpty() ? returned_ : failed_);
        if (!end.message.isEmpty() && state == GetParam().commits && GetParam().commits > 0) {
            ++doubtful_;
            messages_.insert(QString::fromLatin1(Info(fault.kind).name) + ' ' + end.message);
        }
    }

    void FailEach(FaultKind kind, bool lasts) {
        const int calls = RunWith({kind, Never, lasts}).calls;
        for (int at = 1; at <= calls; at += StepBetween(calls))
            Fail({kind, at, lasts});
    }

    int returned_ = 0;
    int failed_ = 0;
    int doubtful_ = 0;
    QSet<QString> messages_;
};

TEST_P(DiskFaultTest, KeepsWhatWasSavedAndWritesNothingHalf) {
    ASSERT_NO_FATAL_FAILURE(PassThrough());
    for (const FaultInfo& fault : FaultKinds())
        for (const bool lasts : {false, true})
            FailEach(fault.kind, lasts);
    std::cout << GetParam().name << ": " << failed_ << " failures told, " << returned_
              << " overcome, " << doubtful_ << " told although all was done\n";
    for (const QString& message : messages_)
        std::cout << "   " << message.toStdString() << "\n";
}

INSTANTIATE_TEST_SUITE_P(EveryRoutine, DiskFaultTest, ::testing::ValuesIn(WritingRoutines::All()),
                         NameOfRoutine);
