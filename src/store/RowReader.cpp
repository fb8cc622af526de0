#include "store/RowReader.h"

#include "runtime/Utf8.h"
#include "store/Connection.h"
#include "store/Dialect.h"
#include "store/Prepared.h"
#include "store/StoreError.h"

#include <SQLiteCpp/Database.h>

#include <algorithm>
#include <cmath>
#include <string_view>

#include <sqlite3.h>

namespace {
bool IsASCII(std::string_view text) {
    return std::ranges::all_of(text, [](char at) { return static_cast<signed char>(at) >= 0; });
}

std::string_view Bytes(sqlite3_stmt* row, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
    return {text, text ? size_t(sqlite3_column_bytes(row, column)) : 0};
}
} // namespace

RowReader::RowReader(Connection& connection, const QString& source)
    : statement_(std::make_unique<Prepared>(connection.Raw().getHandle(), connection.Path(),
                                            Dialect::Adapt(source, false).sql.toUtf8())) {
    if (sqlite3_stmt_readonly(statement_->Handle()) == 0)
        throw StoreError::Make(SQLITE_AUTH, connection.Path(),
                               QStringLiteral("the statement would write"));
}

RowReader::~RowReader() = default;
RowReader::RowReader(RowReader&&) noexcept = default;
RowReader& RowReader::operator=(RowReader&&) noexcept = default;

bool RowReader::Next() {
    return statement_->Step();
}

bool RowReader::IsNull(int column) const {
    return sqlite3_column_type(statement_->Handle(), column) == SQLITE_NULL;
}

std::optional<double> RowReader::Number(int column) const {
    const int type = sqlite3_column_type(statement_->Handle(), column);
    if (type != SQLITE_FLOAT && type != SQLITE_INTEGER)
        return {};
    const double number = sqlite3_column_double(statement_->Handle(), column);
    return std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::string RowReader::Text(int column) const {
    const std::string_view bytes = Bytes(statement_->Handle(), column);
    if (IsASCII(bytes))
        return std::string(bytes);
    return Utf8::Text(bytes).toStdString();
}

QString RowReader::Name(int column) const {
    const std::string_view bytes = Bytes(statement_->Handle(), column);
    return Utf8::Text(bytes);
}

std::optional<qint32> RowReader::Key(int column) const {
    if (sqlite3_column_type(statement_->Handle(), column) != SQLITE_INTEGER)
        return {};
    const auto stored = sqlite3_column_int64(statement_->Handle(), column);
    const auto key = static_cast<qint32>(stored);
    return key == stored ? std::optional(key) : std::nullopt;
}

QDate RowReader::Day(int column) const {
    const std::string_view bytes = Bytes(statement_->Handle(), column);
    return QDate::fromString(QString::fromLatin1(bytes.data(), qsizetype(bytes.size())),
                             Qt::ISODate);
}
