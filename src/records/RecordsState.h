#pragma once

#include "records/RecordsFiles.h"

#include <QJsonObject>

class RecordsFolder;

/// Tells whether a database file is still the one it was, without reading all of it.
struct FileState {
    quint32 changes = 0; ///< commits, as the file counts them
    qint64 length = 0;   ///< in bytes; 0: not known
    qint64 written = 0;  ///< milliseconds since 1970

    static FileState Of(const QString& path);
    bool IsKnown() const { return length > 0; }
    bool operator==(const FileState&) const = default;
};

/// The states of both files of a person's records.
struct RecordsState {
    std::array<FileState, RecordsFiles.size()> files;

    static RecordsState Of(const RecordsFolder& folder);
    static RecordsState FromJson(const QJsonObject& json);
    QJsonObject ToJson() const;
    bool operator==(const RecordsState&) const = default;
};
