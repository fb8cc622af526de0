#pragma once

#include <QByteArray>
#include <QString>

/// The header of a database file as it stands on the disk, read without the store. Valid headers
/// have kept these places in every version of the format.
class FileHeader {
public:
    /// Refuses a file that is not there or cannot be read.
    static FileHeader Of(const QString& path);

    bool IsEmpty() const { return bytes_.isEmpty(); }
    bool IsOfDatabase() const;
    bool IsWhole() const;
    qint64 PageSize() const; ///< in bytes
    qint64 Length() const;   ///< of the whole file, in bytes
    qint32 SchemaVersion() const;
    qint32 ApplicationId() const;
    /// Goes up by one with each change of a file that has a rollback journal.
    quint32 ChangeCount() const;
    bool HasWriteAheadLog() const; ///< made by a version that kept changes in a `-wal`

private:
    explicit FileHeader(QByteArray bytes)
        : bytes_(std::move(bytes)) {}
    QByteArray bytes_;
};
