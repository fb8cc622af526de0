#pragma once

#include <QString>

/// The folder in which a person's records are kept: users.mdb, foods.mdb and, while a program
/// writes there, its lock.
class RecordsFolder {
public:
    explicit RecordsFolder(QString path);

    const QString& Path() const { return path_; }
    QString Users() const { return File("users.mdb"); }
    QString Foods() const { return File("foods.mdb"); }
    QString Lock() const { return File("halvane.lock"); }

private:
    QString File(const char* name) const;

    QString path_;
};
