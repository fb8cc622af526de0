#pragma once

#include <QJsonObject>
#include <QString>

struct Snapshot;

/// A snapshot as the commands print it.
namespace SnapshotFacts {
QString Line(int number, const Snapshot& snapshot);
QJsonObject Json(const Snapshot& snapshot);
} // namespace SnapshotFacts
