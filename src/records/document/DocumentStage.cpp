#include "records/document/DocumentStage.h"

#include "store/Connection.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
const char* FirstColumn(const DocumentSection& section) {
    if (section.key != nullptr)
        return section.key;
    return section.parent != nullptr ? section.parent : "NULL";
}

std::string Parameters(int count) {
    std::string text = "?";
    for (int i = 1; i < count; ++i)
        text += ",?";
    return text;
}
} // namespace

DocumentStage::DocumentStage() {
    for (const DocumentSection* section : DocumentSections::Lists()) {
        Make(*section);
        if (section->children != nullptr)
            Make(*section->children);
    }
}

DocumentStage::~DocumentStage() = default;

std::string DocumentStage::Table(const DocumentSection& section) {
    return std::string("temp.staged_") + section.name;
}

/// A column of the new table converts values as the one that it is made from.
void DocumentStage::Make(const DocumentSection& section) {
    SQLite::Database& database = UserDB().Raw();
    const std::string table = Table(section);
    database.exec("CREATE TABLE " + table + " AS SELECT " + FirstColumn(section) + " AS key, " +
                  section.Columns() + " FROM " + section.table + " WHERE FALSE");
    inserts_[&section] = std::make_unique<SQLite::Statement>(
        database,
        "INSERT INTO " + table + " VALUES (" + Parameters(1 + section.ColumnCount()) + ")");
}

SQLite::Statement& DocumentStage::Insert(const DocumentSection& section) {
    SQLite::Statement& insert = *inserts_.at(&section);
    insert.reset();
    insert.clearBindings();
    return insert;
}
