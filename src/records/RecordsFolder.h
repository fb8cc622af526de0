#pragma once

#include "records/RecordsFiles.h"

#include <QString>

/// The folder in which a person's records are kept: users.mdb, foods.mdb and, while a program
/// writes there, its lock.
class RecordsFolder {
public:
    explicit RecordsFolder(QString path);

    const QString& Path() const { return path_; }
    QString Users() const { return File("users.mdb"); }
    QString Foods() const { return File("foods.mdb"); }
    QString Lock() const { return File("records.lock"); }
    QString File(const char* name) const;
    /// The name under which a new file is made before it takes the place of the old one.
    QString BeingMade(const RecordsFile& file) const;

private:
    QString path_;
};
