#pragma once

#include "records/document/DocumentSection.h"

#include <memory>
#include <optional>

#include <SQLiteCpp/Statement.h>

/// Adds staged rows of a section to the open records, each with the rows that stand in it.
class DocumentAdder {
public:
    explicit DocumentAdder(const DocumentSection& section);

    /// The key is given where the section has keys.
    void Add(std::int64_t stagedRow, std::optional<std::int64_t> key = {});

private:
    static void Run(SQLite::Statement& add, std::optional<std::int64_t> key, std::int64_t staged);

    SQLite::Statement row_;
    std::optional<SQLite::Statement> children_;
};
