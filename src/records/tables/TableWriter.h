#pragma once

#include "records/tables/RecordsTable.h"

#include <functional>
#include <memory>
#include <span>
#include <string_view>

/// Writes a table in one format, row by row.
class TableWriter {
public:
    using Sink = std::function<void(std::string_view)>; ///< takes the next bytes

    virtual ~TableWriter() = default;
    virtual void Head(const std::vector<TableColumn>& columns) = 0;
    virtual void Row(const std::vector<Cell>& cells) = 0;
    virtual void End() = 0;

    void Write(RecordsTable& table); ///< whole
};

struct TableFormat {
    const char* name; ///< also the ending of its files
    bool isText;      ///< can be read on a terminal
    std::unique_ptr<TableWriter> (*make)(const QString& title, TableWriter::Sink sink);

    static std::span<const TableFormat> All();
    static const TableFormat& Named(const std::string& name); ///< it must be one of them
};
