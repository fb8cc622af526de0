#include "records/RecordsState.h"

#include "records/RecordsFolder.h"
#include "store/StoreError.h"

#include <QDateTime>
#include <QFileInfo>
#include <QtEndian>

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

namespace {
constexpr int ChangeCountAt = 24;

/// Read through the store: a file that is opened and closed beside it would end the store's locks.
quint32 ChangeCount(const QString& path) {
    return StoreError::Guarded(path, [&] {
        const SQLite::Database database(path.toStdString(), SQLite::OPEN_READONLY);
        sqlite3_file* file = nullptr;
        quint32 count = 0;
        sqlite3_file_control(database.getHandle(), "main", SQLITE_FCNTL_FILE_POINTER, &file);
        const int result = file->pMethods->xRead(file, &count, sizeof count, ChangeCountAt);
        if (result != SQLITE_OK)
            throw StoreError::Make(result, path, QStringLiteral("its header is missing"));
        return qFromBigEndian(count);
    });
}

FileState StateFrom(const QJsonObject& json) {
    return {static_cast<quint32>(json[u"changes"].toInteger()), json[u"length"].toInteger(),
            json[u"written"].toInteger()};
}

QJsonObject JsonOf(const FileState& state) {
    return {
        {"changes", qint64(state.changes)}, {"length", state.length}, {"written", state.written}};
}
} // namespace

FileState FileState::Of(const QString& path) {
    const QFileInfo file(path);
    return {ChangeCount(path), file.size(), file.lastModified().toMSecsSinceEpoch()};
}

RecordsState RecordsState::Of(const RecordsFolder& folder) {
    RecordsState state;
    for (size_t i = 0; i < RecordsFiles.size(); ++i)
        state.files[i] = FileState::Of(folder.File(RecordsFiles[i].name));
    return state;
}

RecordsState RecordsState::FromJson(const QJsonObject& json) {
    RecordsState state;
    for (size_t i = 0; i < RecordsFiles.size(); ++i)
        state.files[i] = StateFrom(json[QLatin1String(RecordsFiles[i].name)].toObject());
    return state;
}

QJsonObject RecordsState::ToJson() const {
    QJsonObject json;
    for (size_t i = 0; i < RecordsFiles.size(); ++i)
        json[QLatin1String(RecordsFiles[i].name)] = JsonOf(files[i]);
    return json;
}
