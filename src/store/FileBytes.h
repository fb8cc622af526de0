#pragma once

#include <QByteArray>
#include <QString>

/// The bytes of a database file, read directly from the disk.
namespace FileBytes {
inline constexpr qint64 All = -1;

/// The first bytes. Fails (negative number) if reading is not allowed, or if the disk cannot read
/// them: a file that is read in part must not look like a shorter one.
QByteArray Of(const QString& path, qint64 most = All);

/// Whether two files are equal, without the marks that a copy through the store makes anew. A file
/// that cannot be read to its end is equal to none.
bool Same(const QString& one, const QString& other);
} // namespace FileBytes
