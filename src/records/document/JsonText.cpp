#include "records/document/JsonText.h"

#include "records/text/JsonQuote.h"

#include <QByteArray>
#include <QStringDecoder>

#include <algorithm>
#include <charconv>
#include <cmath>

#include <sqlite3.h>

namespace {
constexpr double WholeBelow = 1e15; ///< smaller whole numbers are written without a point

template <class Number> void AddDigits(std::string& text, Number value) {
    char digits[32];
    text.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char at) { return at >= 0; });
}

bool IsUtf8(std::string_view text) {
    if (IsAscii(text))
        return true;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder(QByteArrayView(text.data(), qsizetype(text.size())));
    return !decoder.hasError();
}

std::string_view BytesOf(const void* bytes, sqlite3_stmt* row, int column) {
    const auto count = static_cast<size_t>(sqlite3_column_bytes(row, column));
    return count == 0 ? std::string_view()
                      : std::string_view(static_cast<const char*>(bytes), count);
}
} // namespace

void JsonText::AddWhole(std::int64_t value) {
    AddDigits(text_, value);
}

void JsonText::AddReal(double value) {
    if (std::isinf(value))
        Add(value > 0 ? R"({"number":"Infinity"})" : R"({"number":"-Infinity"})");
    else if (value == 0 && std::signbit(value))
        Add("-0.0");
    else if (std::abs(value) < WholeBelow && value == std::trunc(value))
        AddWhole(static_cast<std::int64_t>(value));
    else
        AddDigits(text_, value);
}

void JsonText::AddText(std::string_view text) {
    if (!IsUtf8(text))
        return AddOdd("text", text);
    AppendJsonQuoted(text_, text);
}

void JsonText::AddOdd(std::string_view member, std::string_view bytes) {
    const auto raw = QByteArray::fromRawData(bytes.data(), qsizetype(bytes.size()));
    Add("{\"");
    Add(member);
    Add("\":\"");
    Add(raw.toBase64().toStdString());
    Add("\"}");
}

void JsonText::AddColumn(sqlite3_stmt* row, int column) {
    switch (sqlite3_column_type(row, column)) {
    case SQLITE_INTEGER:
        return AddWhole(sqlite3_column_int64(row, column));
    case SQLITE_FLOAT:
        return AddReal(sqlite3_column_double(row, column));
    case SQLITE_TEXT:
        return AddText(BytesOf(sqlite3_column_text(row, column), row, column));
    case SQLITE_BLOB:
        return AddOdd("binary", BytesOf(sqlite3_column_blob(row, column), row, column));
    default:
        Add("null");
    }
}
