#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// The sample of release lines, read in the test's own way: split by `^`, the `~` taken off. A
/// figure can thus be compared with the release itself and not with what the tool made of it.
namespace Release {
QString Folder();

/// Records of a sample file under the release's own number; several for WEIGHT.txt.
QHash<QString, QList<QStringList>> Read(const QString& name);

/// Field of a record, counted from 1.
QString Field(const QStringList& record, int number);
} // namespace Release
