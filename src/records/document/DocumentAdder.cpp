#include "records/document/DocumentAdder.h"

#include "records/document/DocumentStage.h"
#include "store/Connection.h"

#include <SQLiteCpp/Database.h>

namespace {
/// The column that takes the given key, where the section has one, then all others.
std::string Adding(const DocumentSection& section, const char* given, const char* condition) {
    const std::string columns = section.Columns();
    const std::string begin = given == nullptr ? "" : given + std::string(", ");
    return std::string("INSERT INTO ") + section.table + " (" + begin + columns + ") SELECT " +
           (given == nullptr ? "" : "?1, ") + columns + " FROM " + DocumentStage::Table(section) +
           " WHERE " + condition + " ORDER BY rowid";
}
} // namespace

DocumentAdder::DocumentAdder(const DocumentSection& section)
    : row_(UserDB().Raw(), Adding(section, section.key, "rowid = ?2")) {
    if (const DocumentSection* inner = section.children)
        children_.emplace(UserDB().Raw(), Adding(*inner, inner->parent, "key = ?2"));
}

void DocumentAdder::Add(std::int64_t stagedRow, std::optional<std::int64_t> key) {
    Run(row_, key, stagedRow);
    if (children_)
        Run(*children_, key, stagedRow);
}

void DocumentAdder::Run(SQLite::Statement& add, std::optional<std::int64_t> key,
                        std::int64_t staged) {
    add.reset();
    if (key)
        add.bind(1, *key);
    add.bind(2, staged);
    add.exec();
}
