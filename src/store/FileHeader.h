#pragma once

#include <QByteArray>
#include <QString>

/// The header of a database file, read directly from the disk. Its layout is the same in every
/// version of the file format. In a header that is not whole, every number is 0.
class FileHeader {
public:
    /// Fails if the file is missing or cannot be read.
    static FileHeader Of(const QString& path);

    bool IsEmpty() const { return bytes_.isEmpty(); }
    bool IsOfDatabase() const;
    bool IsWhole() const;
    qint64 PageSize() const; ///< in bytes
    qint64 Length() const;   ///< of the whole file, in bytes
    qint32 SchemaVersion() const;
    qint32 ApplicationId() const;
    /// Grows by one with each change of a file with a rollback journal.
    quint32 ChangeCount() const;
    bool HasWriteAheadLog() const; ///< made by a version that kept changes in a `-wal`

private:
    explicit FileHeader(QByteArray bytes)
        : bytes_(std::move(bytes)) {}
    QByteArray bytes_;
};
