#pragma once

#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "store/Recordset.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QVariant>

#include <functional>
#include <ostream>

#include <gtest/gtest.h>

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QByteArray& bytes, std::ostream* out) {
    *out << bytes.toHex(' ').left(200).toStdString();
}

/// A folder with a new users.mdb and foods.mdb, both open.
class StoreTest : public ::testing::Test {
protected:
    void SetUp() override;

    QString File(const QString& name) const { return folder_.filePath(name); }
    QString UsersFile() const { return File(QStringLiteral("users.mdb")); }
    QString FoodsFile() const { return File(QStringLiteral("foods.mdb")); }

    void AddFood(int id, const QString& name);
    void AddLog(int uid, const QString& isoDate, const QString& meal, double calories);

    /// Plain SQL, without the dialect.
    static void Run(Connection& connection, const QString& sql);
    static QVariant First(Connection& connection, const QString& sql);
    static QStringList Column(Connection& connection, const QString& sql);

    Connection users_;
    Connection foods_;
    QTemporaryDir folder_;
};

/// The error number of the failure in `action`; 0 if there is none.
int ErrorOf(const std::function<void()>& action);
QString ErrorTextOf(const std::function<void()>& action);

QByteArray Contents(const QString& path);
