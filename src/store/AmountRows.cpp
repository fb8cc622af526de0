#include "store/AmountRows.h"

#include <new>
#include <string_view>

#include <sqlite3.h>

namespace {
constexpr double Unknown = -0.0;
constexpr size_t UsualRows = 500; ///< of a piece of a log

/// As SUM takes a value: a text counts as the number that it begins with.
double NumberOf(sqlite3_value* value) {
    if (sqlite3_value_numeric_type(value) == SQLITE_INTEGER)
        return static_cast<double>(sqlite3_value_int64(value));
    return sqlite3_value_double(value);
}

AmountRows* RowsFor(int count, sqlite3_value** values) {
    void* bound = count == 0 ? nullptr : sqlite3_value_pointer(values[0], AmountRows::Pointer);
    auto* rows = static_cast<AmountRows*>(bound);
    return rows != nullptr && rows->Columns() + 2 == static_cast<size_t>(count) ? rows : nullptr;
}

void Keep(sqlite3_context* context, int count, sqlite3_value** values) {
    AmountRows* const rows = RowsFor(count, values);
    if (rows == nullptr)
        return sqlite3_result_error(context, "no rows to keep the amounts in", -1);
    try {
        rows->Append({values + 1, values + count});
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    }
}

void Finish(sqlite3_context*) {}
} // namespace

void AmountRows::Register(sqlite3* database) {
    sqlite3_create_function(database, Function, -1, SQLITE_UTF8 | SQLITE_DIRECTONLY, nullptr,
                            nullptr, Keep, Finish);
}

AmountRows::AmountRows(size_t columns)
    : known_(columns) {
    amounts_.reserve(columns * UsualRows);
}

void AmountRows::Append(std::span<sqlite3_value*> row) {
    NoteDay(row.front());
    const size_t first = amounts_.size();
    amounts_.resize(first + Columns(), Unknown);
    for (size_t i = 0; i < Columns(); ++i) {
        sqlite3_value* const value = row[i + 1];
        const int type = sqlite3_value_type(value);
        if (type == SQLITE_NULL)
            continue;
        known_[i] = 1;
        amounts_[first + i] = type == SQLITE_FLOAT ? sqlite3_value_double(value) : NumberOf(value);
    }
}

void AmountRows::NoteDay(sqlite3_value* day) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(day));
    if (text == nullptr)
        throw std::bad_alloc();
    const std::string_view read(text, static_cast<size_t>(sqlite3_value_bytes(day)));
    if (read == latestDay_)
        return;
    latestDay_ = read;
    days_.insert(latestDay_);
}
