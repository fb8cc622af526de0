#include "core/TextFile.h"

#include "runtime/AppPath.h"
#include "runtime/RuntimeError.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr auto ByteOrderMark = "\xEF\xBB\xBF";

} // namespace

QByteArray TextFile::ReadBeside(const QString& name) {
    const QString path = FileBeside(name);
    if (!QFileInfo::exists(path))
        throw RuntimeError(ErrorNumber::FileNotFound, path + ": there is no such file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError(ErrorNumber::FileAccess, path + ": " + file.errorString());
    QByteArray text = file.readAll();
    if (text.startsWith(ByteOrderMark))
        text.remove(0, 3);
    return text;
}
