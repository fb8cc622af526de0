#pragma once

#include <QString>
#include <QVariant>

#include <vector>

struct sqlite3_stmt;

/// The columns of a statement's rows: names, and the declared types that decide how values are
/// written and read. Made once a prepared statement and shared by the result sets on it.
class Columns {
public:
    explicit Columns(sqlite3_stmt* statement);

    int Count() const { return static_cast<int>(columns_.size()); }
    const QString& Name(int position) const { return columns_[static_cast<size_t>(position)].name; }
    /// The position of that name without regard to case; -1 where there is none. Of two columns of
    /// one name the first is found.
    int Find(QStringView name) const;

    /// What is stored when `value` is written to the column: fails with 13 or 6 where it does not
    /// fit the declared type.
    QVariant Stored(int position, const QVariant& value) const;
    /// What a reader gets of a stored value.
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
