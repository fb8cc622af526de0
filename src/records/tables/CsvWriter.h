#pragma once

#include "records/tables/TableWriter.h"

/// Writes CSV as RFC 4180 lays it down, in UTF-8. A text that a spreadsheet would take for a
/// formula gets an apostrophe in front, which makes it a text there.
class CsvWriter : public TableWriter {
public:
    CsvWriter(const QString& title, Sink sink);

    void Head(const std::vector<TableColumn>& columns) override;
    void Row(const std::vector<Cell>& cells) override;
    void End() override;

    static std::string Field(const std::string& text);

private:
    void EndLine();

    Sink sink_;
    std::string buffer_;
};
