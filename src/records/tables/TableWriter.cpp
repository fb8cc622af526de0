#include "records/tables/TableWriter.h"

#include "records/tables/CsvWriter.h"
#include "records/tables/JsonWriter.h"
#include "records/tables/XlsxWriter.h"

#include <algorithm>

namespace {
template <class Writer>
std::unique_ptr<TableWriter> Make(const QString& title, TableWriter::Sink sink) {
    return std::make_unique<Writer>(title, std::move(sink));
}

constexpr TableFormat Formats[] = {
    {"csv", true, Make<CsvWriter>},
    {"xlsx", false, Make<XlsxWriter>},
    {"json", true, Make<JsonWriter>},
};
} // namespace

void TableWriter::Write(RecordsTable& table) {
    Head(table.Columns());
    for (std::vector<Cell> row; table.Next(row);)
        Row(row);
    End();
}

std::span<const TableFormat> TableFormat::All() {
    return Formats;
}

const TableFormat& TableFormat::Named(const std::string& name) {
    return *std::ranges::find(Formats, name, &TableFormat::name);
}
