#pragma once

#include <QDate>
#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// A value in a table. Nothing stands for what is not known; it is never written as 0.
using Cell = std::variant<std::monostate, double, QDate, std::string>;

Cell CellOf(std::optional<double> number);
Cell CellOf(std::string text);
Cell CellOf(QDate day);

/// The head of a column.
struct TableColumn {
    QString name;
    QString unit; ///< empty where there is none
    QString key;  ///< of a JSON object

    QString Caption() const; ///< "Total Fat (g)"
};

/// Rows that are taken from the records one by one.
class RecordsTable {
public:
    virtual ~RecordsTable() = default;

    virtual const std::vector<TableColumn>& Columns() const = 0;
    /// Fills a cell for each column; false behind the last row.
    virtual bool Next(std::vector<Cell>& row) = 0;
};

/// A table over a reader: `Next()` moves the reader, and each column takes its cell from it.
template <class Reader> class ReaderTable : public RecordsTable {
public:
    using Value = std::function<Cell(const Reader&)>;

    explicit ReaderTable(Reader reader)
        : reader_(std::move(reader)) {}
    void Add(TableColumn column, Value value) {
        columns_.push_back(std::move(column));
        values_.push_back(std::move(value));
    }

    const std::vector<TableColumn>& Columns() const override { return columns_; }
    bool Next(std::vector<Cell>& row) override {
        if (!reader_.Next())
            return false;
        row.resize(values_.size());
        for (size_t i = 0; i < values_.size(); ++i)
            row[i] = values_[i](reader_);
        return true;
    }

private:
    Reader reader_;
    std::vector<TableColumn> columns_;
    std::vector<Value> values_;
};
