#include "records/RecordsLock.h"

#include "records/RecordsFolder.h"
#include "runtime/RuntimeError.h"

#include <QFile>

namespace {
constexpr QLatin1String Command("halvane-data");

RuntimeError InUse(const QString& holder) {
    const bool byWindow = holder != Command;
    return {ErrorNumber::RecordsInUse,
            byWindow
                ? QStringLiteral("Halvane is open on these records. Close its window first.")
                : QStringLiteral("A halvane-data command is changing these records. Wait until "
                                 "it is done.")};
}
} // namespace

RecordsLock::RecordsLock(const RecordsFolder& folder)
    : lock_(folder.Lock()) {
    if (lock_.TryLock() == ProcessLock::Result::HeldByAnother)
        throw InUse(lock_.Holder());
    for (const RecordsFile& file : RecordsFiles)
        QFile::remove(folder.BeingMade(file)); // a killed program left it
}

bool RecordsLock::IsHeldByCommand(const RecordsFolder& folder) {
    return IsHeld(folder) && ProcessLock(folder.Lock()).Holder() == Command;
}

bool RecordsLock::IsHeld(const RecordsFolder& folder) {
    return ProcessLock(folder.Lock()).IsHeldByAnother();
}
