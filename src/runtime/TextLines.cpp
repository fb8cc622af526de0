#include "runtime/TextLines.h"

#include "runtime/WholeFile.h"

QStringList ReadLines(const QString& path, TextCoding coding) {
    const QByteArray bytes = WholeFile(path);
    QString text =
        coding == TextCoding::Utf8 ? QString::fromUtf8(bytes) : QString::fromLatin1(bytes);
    text.remove(u'\r');
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text.isEmpty() ? QStringList() : text.split(u'\n');
}
