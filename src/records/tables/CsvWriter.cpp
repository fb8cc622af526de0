#include "records/tables/CsvWriter.h"

#include "records/tables/CellText.h"

namespace {
constexpr size_t BufferSize = 1 << 16;
constexpr auto FormulaBeginnings = "=+-@\t\r";
constexpr auto NeedQuotes = "\",\r\n";

bool LooksLikeFormula(const std::string& text) {
    return text.find_first_of(FormulaBeginnings) == 0;
}

std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char at : text)
        quoted.append(at == '"' ? 2 : 1, at);
    return quoted + '"';
}
} // namespace

CsvWriter::CsvWriter(const QString&, Sink sink)
    : sink_(std::move(sink)) {}

std::string CsvWriter::Field(const std::string& text) {
    const std::string guarded = LooksLikeFormula(text) ? '\'' + text : text;
    return guarded.find_first_of(NeedQuotes) == guarded.npos ? guarded : Quoted(guarded);
}

void CsvWriter::Head(const std::vector<TableColumn>& columns) {
    for (const TableColumn& column : columns)
        buffer_ += Field(column.Caption().toStdString()) + ',';
    EndLine();
}

void CsvWriter::Row(const std::vector<Cell>& cells) {
    for (const Cell& cell : cells) {
        if (const auto* number = std::get_if<double>(&cell))
            CellText::AddNumber(buffer_, *number);
        else if (const auto* text = std::get_if<std::string>(&cell))
            buffer_ += Field(*text);
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
