#include "store/FileHeader.h"

#include "store/FileBytes.h"
#include "store/StoreError.h"

#include <QFileInfo>
#include <QtEndian>

#include <sqlite3.h>

namespace {
constexpr int HeaderLength = 100;
constexpr int PageSizeAt = 16;
constexpr int ReadVersionAt = 19;
constexpr int ChangeCountAt = 24;
constexpr int PageCountAt = 28;
constexpr int VersionAt = 60;
constexpr int ApplicationIdAt = 68;
constexpr char WriteAhead = 2;
constexpr char Magic[] = "SQLite format 3"; // 16 bytes with its NUL

[[noreturn]] void Refuse(const QString& path, const char* why) {
    throw StoreError::Make(SQLITE_CANTOPEN, path, QString::fromLatin1(why));
}

template <class Number> Number NumberAt(const QByteArray& header, int place) {
    return header.size() < HeaderLength ? Number{}
                                        : qFromBigEndian<Number>(header.constData() + place);
}
} // namespace

FileHeader FileHeader::Of(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        Refuse(path, "it is not there");
    if (!info.isFile())
        Refuse(path, "it is not a file");
    return FileHeader(FileBytes::Of(path, HeaderLength));
}

bool FileHeader::IsOfDatabase() const {
    return bytes_.startsWith(QByteArrayView(Magic, sizeof Magic));
}

bool FileHeader::IsWhole() const {
    return bytes_.size() == HeaderLength;
}

qint64 FileHeader::PageSize() const {
    constexpr qint64 largest = 65536; // does not fit two bytes
    const qint64 size = NumberAt<quint16>(bytes_, PageSizeAt);
    return size == 1 ? largest : size;
}

qint64 FileHeader::Length() const {
    return NumberAt<qint32>(bytes_, PageCountAt) * PageSize();
}

qint32 FileHeader::SchemaVersion() const {
    return NumberAt<qint32>(bytes_, VersionAt);
}

qint32 FileHeader::ApplicationId() const {
    return NumberAt<qint32>(bytes_, ApplicationIdAt);
}

quint32 FileHeader::ChangeCount() const {
    return NumberAt<quint32>(bytes_, ChangeCountAt);
}

bool FileHeader::HasWriteAheadLog() const {
    return IsWhole() && bytes_[ReadVersionAt] == WriteAhead;
}
