#pragma once

#include <QByteArray>
#include <QString>

/// Text files that are delivered beside the program.
namespace TextFile {
/// The contents of the file, without a byte-order mark. Fails with 53 if it is missing and with 75
/// if it cannot be read.
QByteArray ReadBeside(const QString& name);
} // namespace TextFile
