#pragma once

#include <QByteArray>
#include <QString>

/// The texts that are delivered beside the program.
namespace TextFile {
/// The whole of the file of that name beside the program, without a byte-order mark. Fails with 53
/// where there is none and with 75 where it cannot be read.
QByteArray ReadBeside(const QString& name);
} // namespace TextFile
