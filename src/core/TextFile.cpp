#include "core/TextFile.h"

#include "runtime/AppPath.h"
#include "runtime/RuntimeError.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr int fileAccess = 75;
constexpr auto byteOrderMark = "\xEF\xBB\xBF";

} // namespace

QByteArray TextFile::ReadBeside(const QString& name) {
    const QString path = FileBeside(name);
    if (!QFileInfo::exists(path))
        throw RuntimeError(ErrorNumber::FileNotFound, path + ": there is no such file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError(fileAccess, path + ": " + file.errorString());
    QByteArray text = file.readAll();
    if (text.startsWith(byteOrderMark))
        text.remove(0, 3);
    return text;
}
