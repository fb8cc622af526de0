#pragma once

#include <QByteArray>
#include <QString>

#include <string>

/// The folder of a run, for targets that read files. The settings are there, too. It goes with
/// the process.
namespace Scratch {
QString Folder();
QString Path(const QString& name);

/// The file of that name holds just these bytes. Gives its path.
QString Write(const QString& name, const QByteArray& bytes);

/// What stands between the bytes 0x1E ("record separator"): a target that takes several texts or
/// files gets them as one. Parts that are missing are empty.
QByteArrayList Parts(const std::string& bytes, int count);

/// Has new records open, `UserDB()` with `FoodDB()` together: they hold the last stock food alone.
void OpenRecords();
} // namespace Scratch
