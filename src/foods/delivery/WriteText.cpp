#include "foods/delivery/WriteText.h"

#include "runtime/RuntimeError.h"

#include <QSaveFile>

void WriteText(const QString& path, const QString& text) {
    QSaveFile file(path);
    const QByteArray bytes = text.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
        !file.commit())
        throw RuntimeError(ErrorNumber::FileNotFound, path + u": " + file.errorString());
}
