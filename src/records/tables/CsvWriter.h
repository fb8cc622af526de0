#pragma once

#include "records/tables/TableWriter.h"

/// Writes CSV as RFC 4180 lays it down, in UTF-8. A spreadsheet takes no text for a formula.
class CsvWriter : public TableWriter {
public:
    CsvWriter(const QString& title, Sink sink);

    void Head(const std::vector<TableColumn>& columns) override;
    void Row(const std::vector<Cell>& cells) override;
    void End() override;

private:
    void EndLine();

    Sink sink_;
    std::string buffer_;
};
