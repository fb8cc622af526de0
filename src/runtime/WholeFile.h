#pragma once

#include <QByteArray>
#include <QString>

/// All bytes of a file. Fails if the disk cannot read it to its end: a part of a file must not look
/// like a shorter one.
QByteArray WholeFile(const QString& path);
