#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QMap>

#include <span>

class QRandomGenerator;
namespace SQLite {
class Database;
}

/// Rows as no screen of ours writes them, but any tool can: nulls, texts where numbers belong,
/// numbers beyond every bound, dates that are none. A row is made of a sound one, so that it is
/// found where a person would meet it.
class HostileRows {
public:
    using Row = QMap<QByteArray, QByteArray>; ///< the literal of each column

    /// The literals that any column may hold.
    static std::span<const char* const> Values();

    /// `sound` gives the columns by which a screen finds a row of the table; they stay.
    HostileRows(SQLite::Database& database, QByteArray table, Row sound);

    /// One row a column that holds the value there, and one that holds it everywhere.
    QList<Row> With(const char* value) const;
    /// Every column holds one or another value, or what the store puts there.
    Row Random(QRandomGenerator& random) const;
    /// The same with values that nobody has listed, and sometimes with a key beyond every bound.
    Row Wild(QRandomGenerator& random) const;

    void Insert(const Row& row) const; ///< one with a key that is taken replaces that row
    void Insert(const QList<Row>& rows) const;

private:
    SQLite::Database& database_;
    QByteArray table_;
    Row sound_;
    QByteArrayList columns_; ///< but for the key and those of the sound row
    QByteArray key_;         ///< empty if the table has none
};
