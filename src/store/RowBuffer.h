#pragma once

#include <QVariant>

#include <cstdint>
#include <string>
#include <vector>

struct sqlite3_stmt;

/// The rows of a result set in memory: fixed cells, and one string with all texts. The text of a
/// replaced row stays until the buffer is destroyed.
class RowBuffer {
public:
    explicit RowBuffer(int columns = 0)
        : columns_(static_cast<size_t>(columns)) {}

    int Count() const { return static_cast<int>(columns_ == 0 ? 0 : cells_.size() / columns_); }
    QVariant Value(int row, int column) const;

    /// Adds the current row of the statement.
    void Append(sqlite3_stmt* statement);
    /// Adds the rows of another buffer with the same columns.
    void Append(const RowBuffer& other);
    /// Replaces a row by the first row of another buffer.
    void Replace(int row, const RowBuffer& other);
    void Erase(int row);

private:
    enum class Kind : std::uint8_t { Null, Integer, Real, Text };
    struct Cell {
        Kind kind = Kind::Null;
        std::uint32_t bytes = 0; ///< of a text
        union {
            std::int64_t integer = 0;
            double real;
            std::size_t offset; ///< of a text
        };
    };
    Cell Take(sqlite3_stmt* statement, int column);
    Cell Take(const RowBuffer& other, Cell cell);
    size_t First(int row) const { return static_cast<size_t>(row) * columns_; }

    size_t columns_;
    std::vector<Cell> cells_;
    std::string texts_;
};
