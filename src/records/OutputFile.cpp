#include "records/OutputFile.h"

#include "runtime/RuntimeError.h"

OutputFile::OutputFile(const QString& path)
    : file_(path) {
    if (!file_.open(QIODevice::WriteOnly))
        Fail();
}

void OutputFile::Write(std::string_view bytes) {
    if (file_.write(bytes.data(), qint64(bytes.size())) != qint64(bytes.size()))
        Fail();
}

void OutputFile::Keep() {
    if (!file_.flush() || !file_.commit()) // commit keeps a file whose last bytes do not fit
        Fail();
}

void OutputFile::Fail() const {
    throw RuntimeError(ErrorNumber::FileAccess,
                       file_.fileName() + u" cannot be written: " + file_.errorString() + u'.');
}
