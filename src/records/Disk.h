#pragma once

#include <QString>

/// Steps on whole files. Each failure is a RuntimeError with ErrorNumber::FileAccess that names the
/// path and the reason.
namespace Disk {
void MakeFolder(const QString& path);  ///< in one that is there
void MakeFolders(const QString& path); ///< with those above it; they survive a power cut
void Copy(const QString& from, const QString& to);
/// Both names lead to one file; where the disk does not allow that, `to` is a copy.
void LinkOrCopy(const QString& from, const QString& to);
void Move(const QString& from, const QString& to); ///< replaces what is there in one step
void Remove(const QString& path);                  ///< a file; nothing happens without it
void RemoveFolder(const QString& path);            ///< with all that is in it
void Write(const QString& path, const QByteArray& bytes);

/// What was written survives a power cut. For a folder: the names in it.
void Sync(const QString& path);
} // namespace Disk
