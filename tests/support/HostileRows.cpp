#include "support/HostileRows.h"

#include <QRandomGenerator>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr const char* Literals[] = {
    "NULL",
    "'text'",
    "''",
    "'12 apples'",
    "'1e999'",
    "0",
    "-1",
    "1e300",
    "-1e300",
    "9e999",
    "-9e999",
    "2147483648",
    "9223372036854775807",
    "-9223372036854775808",
    "x'00ff8000'",
    "x''",
    "'0050-01-01'",
    "'12345-01-01'",
    "'2026-02-30'",
    "char(0, 10, 8238, 128512)",
    "printf('%.*c', 100000, 'W')",
};
} // namespace

std::span<const char* const> HostileRows::Values() {
    return Literals;
}

HostileRows::HostileRows(SQLite::Database& database, QByteArray table, Row sound)
    : database_(database)
    , table_(std::move(table))
    , sound_(std::move(sound)) {
    SQLite::Statement columns(database_, "SELECT name FROM pragma_table_info(?) WHERE pk = 0");
    columns.bind(1, table_.toStdString());
    while (columns.executeStep())
        if (const QByteArray name = columns.getColumn(0).getText(); !sound_.contains(name))
            columns_ << name;
}

QList<HostileRows::Row> HostileRows::With(const char* value) const {
    QList<Row> rows;
    Row everywhere = sound_;
    for (const QByteArray& column : columns_) {
        rows << sound_;
        rows.last()[column] = value;
        everywhere[column] = value;
    }
    return rows << everywhere;
}

HostileRows::Row HostileRows::Random(QRandomGenerator& random) const {
    Row row = sound_;
    for (const QByteArray& column : columns_)
        if (const auto chosen = size_t(random.bounded(int(std::size(Literals)) * 2));
            chosen < std::size(Literals))
            row[column] = Literals[chosen];
    return row;
}

void HostileRows::Insert(const Row& row) const {
    const QByteArray columns = row.keys().join(", ");
    const QByteArray values = row.values().join(", ");
    const QByteArray filled = " (" + columns + ") VALUES (" + values + ")";
    const QByteArray insert =
        "INSERT INTO " + table_ + (row.isEmpty() ? QByteArray(" DEFAULT VALUES") : filled);
    database_.exec(insert.constData());
}

void HostileRows::Insert(const QList<Row>& rows) const {
    for (const Row& row : rows)
        Insert(row);
}
