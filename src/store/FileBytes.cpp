#include "store/FileBytes.h"

#include "store/StoreError.h"

#include <QFile>

#include <algorithm>

#include <sqlite3.h>

namespace {
/// Without the marks that a copy makes anew.
QByteArray FirstPage(QFile& file) {
    struct Mark {
        qsizetype at;
        qsizetype length;
    };
    constexpr Mark marks[] = {{24, 4}, {40, 4}, {92, 8}}; // change count, schema count, writer
    constexpr qint64 smallestPage = 512;
    QByteArray page = file.read(smallestPage);
    for (const auto& [at, length] : marks)
        if (at + length <= page.size())
            std::fill_n(page.begin() + at, length, '\0');
    return page;
}
} // namespace

QByteArray FileBytes::Of(const QString& path, qint64 most) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw StoreError::Make(SQLITE_CANTOPEN, path, QStringLiteral("reading it is not allowed"));
    const QByteArray bytes = most == All ? file.readAll() : file.read(most);
    if (file.error() != QFileDevice::NoError)
        throw StoreError::Make(SQLITE_IOERR, path, file.errorString());
    return bytes;
}

bool FileBytes::Same(const QString& one, const QString& other) {
    QFile first(one);
    QFile second(other);
    if (!first.open(QIODevice::ReadOnly) || !second.open(QIODevice::ReadOnly) ||
        first.size() != second.size() || FirstPage(first) != FirstPage(second))
        return false;
    constexpr qint64 piece = 1 << 20;
    for (;;) {
        const QByteArray bytes = first.read(piece);
        if (bytes != second.read(piece))
            return false;
        if (bytes.isEmpty())
            return first.atEnd() && second.atEnd(); // nothing comes either if a disk fails
    }
}
