#include "support/HostileRows.h"

#include <QDate>
#include <QRandomGenerator>

#include <SQLiteCpp/SQLiteCpp.h>

#include <cmath>

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

constexpr const char* Keys[] = {
    "0", "-1", "2147483647", "2147483648", "-2147483649", "-9223372036854775808",
};

QByteArray Quoted(const QString& text) {
    return '\'' + QString(text).remove(QChar(0)).replace(u'\'', QLatin1String("''")).toUtf8() +
           '\'';
}

QByteArray AnyInteger(QRandomGenerator& random) {
    return QByteArray::number(qint64(random.generate64()) >> random.bounded(64));
}

/// Of any size that a number can have.
QByteArray AnyReal(QRandomGenerator& random) {
    const double mantissa = random.generateDouble() * 2 - 1;
    return QByteArray::number(mantissa * std::pow(10, random.bounded(-320, 308)), 'g', 17);
}

QByteArray AnyText(QRandomGenerator& random) {
    QString text;
    for (int left = random.bounded(30); left > 0; --left)
        text += QChar(random.bounded(2) == 0 ? random.bounded(1, 128) : random.bounded(1, 0x700));
    return Quoted(text);
}

QByteArray AnyBytes(QRandomGenerator& random) {
    QByteArray bytes(random.bounded(20), '\0');
    for (char& byte : bytes)
        byte = char(random.generate());
    return "x'" + bytes.toHex() + '\'';
}

QByteArray AnyDate(QRandomGenerator& random) {
    return Quoted(QDate::fromJulianDay(random.bounded(1, 6'000'000)).toString(Qt::ISODate));
}

constexpr QByteArray (*AnyValues[])(QRandomGenerator&) = {AnyInteger, AnyReal, AnyText, AnyBytes,
                                                          AnyDate};

template <class Values> const auto& OneOf(const Values& values, QRandomGenerator& random) {
    return values[random.bounded(int(std::size(values)))];
}
} // namespace

std::span<const char* const> HostileRows::Values() {
    return Literals;
}

HostileRows::HostileRows(SQLite::Database& database, QByteArray table, Row sound)
    : database_(database)
    , table_(std::move(table))
    , sound_(std::move(sound)) {
    SQLite::Statement columns(database_, "SELECT name, pk FROM pragma_table_info(?)");
    columns.bind(1, table_.toStdString());
    while (columns.executeStep()) {
        const QByteArray name = columns.getColumn(0).getText();
        if (columns.getColumn(1).getInt() != 0)
            key_ = name;
        else if (!sound_.contains(name))
            columns_ << name;
    }
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

HostileRows::Row HostileRows::Wild(QRandomGenerator& random) const {
    constexpr int soundKeys = 10; // for one that is not
    Row row = Random(random);
    for (const QByteArray& column : columns_)
        if (random.bounded(4) != 0)
            row[column] = OneOf(AnyValues, random)(random);
    if (!key_.isEmpty() && random.bounded(soundKeys) == 0)
        row[key_] = OneOf(Keys, random);
    return row;
}

void HostileRows::Insert(const Row& row) const {
    const QByteArray columns = row.keys().join(", ");
    const QByteArray values = row.values().join(", ");
    const QByteArray filled = " (" + columns + ") VALUES (" + values + ")";
    const QByteArray insert = "INSERT OR REPLACE INTO " + table_ +
                              (row.isEmpty() ? QByteArray(" DEFAULT VALUES") : filled);
    database_.exec(insert.constData());
}

void HostileRows::Insert(const QList<Row>& rows) const {
    for (const Row& row : rows)
        Insert(row);
}
