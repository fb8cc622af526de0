#include "common/TextFile.h"

#include "runtime/RuntimeError.h"

#include <QFile>
#include <QSaveFile>

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

void WriteText(const QString& path, const QString& text) {
    QSaveFile file(path);
    const QByteArray bytes = text.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw RuntimeError(ErrorNumber::FileNotFound, path + u": " + file.errorString());
}
