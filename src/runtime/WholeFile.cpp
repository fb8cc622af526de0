#include "runtime/WholeFile.h"

#include "runtime/RuntimeError.h"

#include <QFile>

QByteArray WholeFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError(ErrorNumber::FileNotFound, path + u": " + file.errorString());
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw RuntimeError(ErrorNumber::FileAccess, path + u": " + file.errorString());
    return bytes;
}
