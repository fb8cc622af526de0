#include "records/RecordsLock.h"

#include "records/RecordsFolder.h"
#include "runtime/RuntimeError.h"

namespace {
RuntimeError InUse(const QString& holder) {
    const bool byWindow = holder != QLatin1String("halvane-data");
    return {ErrorNumber::RecordsInUse,
            byWindow ? QStringLiteral("Halvane is open on these records. Close its window first.")
                     : QStringLiteral("Another halvane-data is changing these records. Wait until "
                                      "it is done.")};
}
} // namespace

RecordsLock::RecordsLock(const RecordsFolder& folder)
    : lock_(folder.Lock()) {
    if (lock_.TryLock() == ProcessLock::Result::HeldByAnother)
        throw InUse(lock_.Holder());
}

bool RecordsLock::IsHeld(const RecordsFolder& folder) {
    return ProcessLock(folder.Lock()).IsHeldByAnother();
}
