#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// The sample of release lines, read by the test itself: split by `^`, without `~`. So each figure
/// is compared with the release and not with output of the tool.
namespace Release {
QString Folder();

/// Records of a sample file with that number; WEIGHT.txt may have several.
QHash<QString, QList<QStringList>> Read(const QString& name);

/// Field of a record, counted from 1.
QString Field(const QStringList& record, int number);
} // namespace Release
