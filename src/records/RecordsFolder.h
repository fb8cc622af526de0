#pragma once

#include "records/RecordsFiles.h"

#include <QString>

/// The folder in which a person's records are kept: users.mdb, foods.mdb and, while a program
/// writes there, its lock. Where the program is installed for all people of a machine, a small file
/// names the delivery.
class RecordsFolder {
public:
    explicit RecordsFolder(QString path);

    const QString& Path() const { return path_; }
    QString Users() const { return File("users.mdb"); }
    QString Foods() const { return File("foods.mdb"); }
    QString Lock() const { return File("records.lock"); }
    /// Names the delivery whose stock foods are in foods.mdb; empty if a restore may have brought
    /// others.
    QString Delivery() const { return File("delivery.id"); }
    QString File(const char* name) const;
    /// The name under which a new file is made before it takes the place of the old one.
    QString BeingMade(const RecordsFile& file) const;

private:
    QString path_;
};
