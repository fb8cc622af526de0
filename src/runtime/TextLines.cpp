#include "runtime/TextLines.h"

#include "runtime/RuntimeError.h"

#include <QFile>

QStringList ReadLines(const QString& path, TextCoding coding) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError(ErrorNumber::FileNotFound, path + u": " + file.errorString());
    const QByteArray bytes = file.readAll();
    QString text =
        coding == TextCoding::Utf8 ? QString::fromUtf8(bytes) : QString::fromLatin1(bytes);
    text.remove(u'\r');
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text.isEmpty() ? QStringList() : text.split(u'\n');
}
