#include "records/document/DocumentInput.h"

#include "runtime/RuntimeError.h"

#include <QDir>
#include <QFileInfo>

namespace {
constexpr qsizetype Chunk = 1 << 16;
constexpr qint64 MostMegabytes = 24; ///< of a row
} // namespace

DocumentInput::DocumentInput(const QString& path)
    : file_(path) {
    if (!QFileInfo(path).isFile() || !file_.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw RuntimeError(ErrorNumber::FileNotFound,
                           "The file " + QDir::toNativeSeparators(path) + " cannot be read.");
}

bool DocumentInput::ReadMore() {
    if (Taken() - rowBegin_ > MostMegabytes << 20)
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("it is longer than %1 megabytes").arg(MostMegabytes));
    bufferBegin_ += buffer_.size();
    at_ = 0;
    buffer_ = file_.read(Chunk);
    if (file_.error() != QFileDevice::NoError)
        throw RuntimeError(ErrorNumber::FileAccess, file_.errorString());
    return !buffer_.isEmpty();
}
