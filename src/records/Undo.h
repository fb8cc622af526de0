#pragma once

#include "records/Snapshot.h"

/// Takes changes of commands back, the last one first.
///
/// Each change has kept the records as they were before it. They come back only where nothing else
/// has changed since, so no other entry is lost.
namespace Undo {
struct Result {
    QString change;    ///< what was taken back
    QDateTime moment;  ///< when it was made
    Snapshot replaced; ///< the records with the change, to bring it back
};

/// Fails with ErrorNumber::CannotBeChanged where there is nothing to take back, or where the
/// records have changed since.
Result Last(const RecordsFolder& records);
} // namespace Undo
