#pragma once

#include <QDate>
#include <QSet>

/// Which daily snapshots are kept: of the newest 7 days, of the newest 5 weeks and of the newest 12
/// months that have one. The newest snapshot of a week or a month stands for it.
namespace SnapshotRetention {
inline constexpr int Days = 7;
inline constexpr int Weeks = 5;
inline constexpr int Months = 12;

QSet<QDate> Kept(QList<QDate> days);
} // namespace SnapshotRetention
