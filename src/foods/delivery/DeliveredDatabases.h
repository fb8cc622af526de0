#pragma once

#include "foods/delivery/TsvTable.h"

#include <QString>

/// Makes users.mdb and foods.mdb from the tables in the data folder. After each call the files are
/// closed and have no journal.
class DeliveredDatabases {
public:
    explicit DeliveredDatabases(QString dataFolder);

    /// Writes both files, for a build folder: existing files are replaced.
    void Build(const QString& folder) const;

    /// Updates a folder that is in use. A missing file is made. In an existing foods.mdb the stock
    /// foods are replaced in one transaction, and custom foods stay; if they are as delivered, the
    /// file stays as it is. An existing users.mdb is not touched.
    void Update(const QString& folder) const;

private:
    void MakeUsers(const QString& path) const;
    void MakeFoods(const QString& path) const;
    void UpdateFoods(const QString& path) const;
    TsvTable Table(const char* name) const;

    QString dataFolder_;
};
