#include "records/RecordsFolder.h"

#include <QDir>

RecordsFolder::RecordsFolder(QString path)
    : path_(std::move(path)) {}

QString RecordsFolder::File(const char* name) const {
    return QDir(path_).filePath(QLatin1String(name));
}

QString RecordsFolder::BeingMade(const RecordsFile& file) const {
    return File(file.name) + QLatin1String(".new");
}
