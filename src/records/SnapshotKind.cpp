#include "records/SnapshotKind.h"

#include <algorithm>

const SnapshotKinds::Row& SnapshotKinds::Of(SnapshotKind kind) {
    return *std::ranges::find(Rows, kind, &Row::kind);
}
