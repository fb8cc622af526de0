#pragma once

#include <QByteArrayView>
#include <QString>

namespace Utf8 {
/// The text of these bytes, with a byte order mark (U+FEFF) at its start. `QString::fromUtf8` drops
/// the mark, which is right for a file, but a value that begins with it would become another one.
QString Text(QByteArrayView bytes);
} // namespace Utf8
