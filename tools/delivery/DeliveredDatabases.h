#pragma once

#include "common/TsvTable.h"

#include <QString>

/// Makes users.mdb and foods.mdb from the delivered tables of the data folder. Every file is closed
/// when a call returns, with no journal left beside it.
class DeliveredDatabases {
public:
    explicit DeliveredDatabases(QString dataFolder);

    /// Writes both files anew. Meant for a build folder: what stands there is replaced.
    void Build(const QString& folder) const;

    /// Brings a folder that people work in up to this release. A missing file is made. In an
    /// existing foods.mdb the stock foods are replaced, in one transaction, and custom foods stay;
    /// an existing users.mdb is not touched.
    void Update(const QString& folder) const;

private:
    void MakeUsers(const QString& path) const;
    void MakeFoods(const QString& path) const;
    void UpdateFoods(const QString& path) const;
    TsvTable Table(const char* name) const;

    QString dataFolder_;
};
