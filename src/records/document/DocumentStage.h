#pragma once

#include "records/document/DocumentSection.h"

#include <map>
#include <memory>

namespace SQLite {
class Statement;
}

/// Temporary tables on the open records, one for each section, that hold the rows of a document as
/// the store will hold them. They go with the connection. Rows without a section's key have null
/// there; a row that stands in another has that one's place.
class DocumentStage {
public:
    DocumentStage();
    ~DocumentStage();

    static std::string Table(const DocumentSection& section);

    /// The statement that adds a row, all its parameters null: key, fields, amounts.
    SQLite::Statement& Insert(const DocumentSection& section);

private:
    void Make(const DocumentSection& section);

    std::map<const DocumentSection*, std::unique_ptr<SQLite::Statement>> inserts_;
};
