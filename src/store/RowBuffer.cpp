#include "store/RowBuffer.h"

#include "runtime/Utf8.h"

#include <sqlite3.h>

QVariant RowBuffer::Value(int row, int column) const {
    const Cell& cell = cells_[First(row) + static_cast<size_t>(column)];
    switch (cell.kind) {
    case Kind::Integer:
        return qlonglong(cell.integer);
    case Kind::Real:
        return cell.real;
    case Kind::Text:
        return Utf8::Text({texts_.data() + cell.offset, cell.bytes});
    default:
        return {};
    }
}

void RowBuffer::Append(sqlite3_stmt* statement) {
    for (int i = 0; i < static_cast<int>(columns_); ++i)
        cells_.push_back(Take(statement, i));
}

void RowBuffer::Append(const RowBuffer& other) {
    for (const Cell& cell : other.cells_)
        cells_.push_back(Take(other, cell));
}

void RowBuffer::Replace(int row, const RowBuffer& other) {
    for (size_t i = 0; i < columns_; ++i)
        cells_[First(row) + i] = Take(other, other.cells_[i]);
}

void RowBuffer::Erase(int row) {
    const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(First(row));
    cells_.erase(first, first + static_cast<std::ptrdiff_t>(columns_));
}

RowBuffer::Cell RowBuffer::Take(sqlite3_stmt* statement, int column) {
    Cell cell;
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
        break;
    case SQLITE_INTEGER:
        cell.kind = Kind::Integer;
        cell.integer = sqlite3_column_int64(statement, column);
        break;
    case SQLITE_FLOAT:
        cell.kind = Kind::Real;
        cell.real = sqlite3_column_double(statement, column);
        break;
    default: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
        cell.kind = Kind::Text;
        cell.bytes = static_cast<std::uint32_t>(sqlite3_column_bytes(statement, column));
        cell.offset = texts_.size();
        texts_.append(text, cell.bytes);
    }
    }
    return cell;
}

RowBuffer::Cell RowBuffer::Take(const RowBuffer& other, Cell cell) {
    if (cell.kind != Kind::Text)
        return cell;
    const size_t offset = texts_.size();
    texts_.append(other.texts_, cell.offset, cell.bytes);
    cell.offset = offset;
    return cell;
}
