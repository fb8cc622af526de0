#include "core/HeldRecords.h"

#include "records/RecordsFolder.h"
#include "records/RecordsLock.h"
#include "runtime/AppPath.h"
#include "runtime/RuntimeError.h"

#include <QDeadlineTimer>
#include <QThread>

#include <optional>

namespace {
constexpr int Patience = 2000; ///< milliseconds
constexpr int Pause = 20;

std::optional<RecordsLock>& Lock() {
    static std::optional<RecordsLock> lock;
    return lock;
}

bool IsHeldByAnotherWindow(const RecordsFolder& records) {
    return RecordsLock::IsHeld(records) && !RecordsLock::IsHeldByCommand(records);
}
} // namespace

void HeldRecords::Take() {
    const RecordsFolder records(RecordsPath());
    const QDeadlineTimer patience(Patience);
    while (!Lock() && !IsHeldByAnotherWindow(records)) {
        try {
            Lock().emplace(records);
        } catch (const RuntimeError&) {
            if (patience.hasExpired())
                throw;
            QThread::msleep(Pause);
        }
    }
}

bool HeldRecords::AreHeld() {
    return Lock().has_value();
}

void HeldRecords::Release() {
    Lock().reset();
}
