#include "runtime/Utf8.h"

QString Utf8::Text(QByteArrayView bytes) {
    const QString text = QString::fromUtf8(bytes);
    return bytes.startsWith("\xEF\xBB\xBF") ? QChar(QChar::ByteOrderMark) + text : text;
}
