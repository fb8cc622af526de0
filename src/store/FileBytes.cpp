#include "store/FileBytes.h"

#include "store/StoreError.h"

#include <QFile>

#include <sqlite3.h>

QByteArray FileBytes::Of(const QString& path, qint64 most) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw StoreError::Make(SQLITE_CANTOPEN, path, QStringLiteral("reading it is not allowed"));
    const QByteArray bytes = most == All ? file.readAll() : file.read(most);
    if (file.error() != QFileDevice::NoError)
        throw StoreError::Make(SQLITE_IOERR, path, file.errorString());
    return bytes;
}
