#pragma once

#include <QString>
#include <QVariant>

#include <vector>

struct sqlite3_stmt;

/// The columns of a statement: their names, and the declared types, which decide how values are
/// written and read. All result sets of a prepared statement share it.
class Columns {
public:
    explicit Columns(sqlite3_stmt* statement);

    int Count() const { return static_cast<int>(columns_.size()); }
    const QString& Name(int position) const { return columns_[static_cast<size_t>(position)].name; }
    /// The position of a name; case does not matter. -1 if there is none; the first of two equal
    /// names.
    int Find(QStringView name) const;

    /// The value as the column stores it. Fails with 13 or 6 if it does not fit the declared type.
    QVariant Stored(int position, const QVariant& value) const;
    /// The value as a reader gets it.
    QVariant Read(int position, const QVariant& stored) const;

private:
    enum class Type { Any, Integer, Real, Text, Date, Boolean };
    struct Column {
        QString name;
        Type type;
        size_t hash;
    };
    static Type TypeNamed(const char* declared);

    std::vector<Column> columns_;
};
