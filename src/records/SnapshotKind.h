#pragma once

#include <QString>

/// Why a snapshot was made.
enum class SnapshotKind {
    Daily,    ///< by the window, at the first start of a day
    Change,   ///< before a command changes the records; `undo` brings it back
    Upgrade,  ///< before a new version of the program changes the tables
    Manual,   ///< by the command `backup`
    Replaced, ///< what `restore` and `undo` have put something else in the place of
};

namespace SnapshotKinds {
inline constexpr int All = -1;

struct Row {
    SnapshotKind kind;
    const char* name; ///< in the name of the folder
    int kept;         ///< the newest so many, or All; of the daily ones, SnapshotRetention decides
};
inline constexpr Row Rows[] = {
    {SnapshotKind::Daily, "daily", All},     {SnapshotKind::Change, "change", 10},
    {SnapshotKind::Upgrade, "upgrade", 5},   {SnapshotKind::Manual, "manual", All},
    {SnapshotKind::Replaced, "replaced", 5},
};

const Row& Of(SnapshotKind kind);
} // namespace SnapshotKinds
