#include "records/tables/CsvWriter.h"

#include "records/tables/CellText.h"
#include "records/text/CsvText.h"

namespace {
constexpr size_t BufferSize = 1 << 16;
} // namespace

CsvWriter::CsvWriter(const QString&, Sink sink)
    : sink_(std::move(sink)) {}

void CsvWriter::Head(const std::vector<TableColumn>& columns) {
    for (const TableColumn& column : columns)
        buffer_ += CsvText::ForeignCell(column.Caption().toStdString()) + ',';
    EndLine();
}

void CsvWriter::Row(const std::vector<Cell>& cells) {
    for (const Cell& cell : cells) {
        if (const auto* number = std::get_if<double>(&cell))
            CellText::AddNumber(buffer_, *number);
        else if (const auto* text = std::get_if<std::string>(&cell))
            buffer_ += CsvText::ForeignCell(*text);
        else if (const auto* day = std::get_if<QDate>(&cell))
            buffer_ += CellText::Iso(*day);
        buffer_ += ',';
    }
    EndLine();
}

void CsvWriter::EndLine() {
    buffer_.pop_back();
    buffer_ += "\r\n";
    if (buffer_.size() < BufferSize)
        return;
    sink_(buffer_);
    buffer_.clear();
}

void CsvWriter::End() {
    sink_(buffer_);
    buffer_.clear();
}
