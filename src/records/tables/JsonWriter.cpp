#include "records/tables/JsonWriter.h"

#include "records/tables/CellText.h"
#include "records/text/JsonQuote.h"

JsonWriter::JsonWriter(const QString&, Sink sink)
    : sink_(std::move(sink)) {}

std::string JsonWriter::Text(const std::string& text) {
    std::string quoted;
    AppendJsonQuoted(quoted, text);
    return quoted;
}

void JsonWriter::Head(const std::vector<TableColumn>& columns) {
    for (const TableColumn& column : columns)
        keys_.push_back((keys_.empty() ? "{" : ", ") + Text(column.key.toStdString()) + ": ");
    sink_("[");
}

void JsonWriter::Row(const std::vector<Cell>& cells) {
    std::string line = first_ ? "\n" : ",\n";
    first_ = false;
    for (size_t i = 0; i < cells.size(); ++i) {
        line += keys_[i];
        if (const auto* number = std::get_if<double>(&cells[i]))
            CellText::AddNumber(line, *number);
        else if (const auto* text = std::get_if<std::string>(&cells[i]))
            line += Text(*text);
        else if (const auto* day = std::get_if<QDate>(&cells[i]))
            line += Text(CellText::Iso(*day));
        else
            line += "null";
    }
    sink_(line + '}');
}

void JsonWriter::End() {
    sink_("\n]\n");
}
