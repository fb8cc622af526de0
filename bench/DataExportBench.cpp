#include "BareStore.h"
#include "Ground.h"
#include "Table.h"

#include "records/OutputFile.h"
#include "records/RecordsFolder.h"
#include "records/document/DocumentSection.h"
#include "records/document/RecordsDocument.h"
#include "runtime/AppPath.h"
#include "store/Connection.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
void CloseBoth() {
    UserDB().Close();
    FoodDB().Close();
}

/// The file is on the disk when it is done.
void ExportOurs(benchmark::State& state) {
    const Ground ground(true);
    CloseBoth();
    for (auto _ : state) {
        OutputFile file(FileBeside(QStringLiteral("records.json")));
        RecordsDocument::Export(
            RecordsFolder(ApplicationPath()), [&](std::string_view piece) { file.Write(piece); },
            [](qint64, qint64) {});
        file.Keep();
    }
}

void ExportLimit(benchmark::State& state) {
    const Ground ground(true);
    SQLite::Database users = BareStore::Open(UserDB());
    SQLite::Database foods = BareStore::Open(FoodDB());
    for (auto _ : state)
        for (const DocumentSection* section : DocumentSections::Lists())
            BareStore::Read(section == &DocumentSections::Foods ? foods : users,
                            "SELECT " + section->Columns() + " FROM " + section->table + " WHERE " +
                                section->rows);
}

[[maybe_unused]] const bool aim = [] {
    Table::Aim("ten years exported to one file", 3);
    return true;
}();
} // namespace

BENCHMARK(ExportOurs)->Name("ten years exported to one file/ours");
BENCHMARK(ExportLimit)->Name("ten years exported to one file/limit");
