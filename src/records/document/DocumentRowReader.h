#pragma once

#include "records/document/DocumentSection.h"

#include <nlohmann/json_fwd.hpp>

#include <optional>
#include <vector>

namespace SQLite {
class Statement;
}
class DocumentStage;

/// Reads rows of a document into the stage. What does not fit fails with ErrorNumber::TypeMismatch
/// and a sentence that says what it is; a member that is missing is null.
class DocumentRowReader {
public:
    explicit DocumentRowReader(DocumentStage& stage)
        : stage_(stage) {}

    /// The list of the nutrients, in whose order the document holds amounts.
    void ReadNutrients(const nlohmann::json& list);
    void ReadRow(const DocumentSection& section, const nlohmann::json& row,
                 std::optional<std::int64_t> parent = {});

private:
    void ReadAmounts(SQLite::Statement& insert, int first, const nlohmann::json& amounts) const;
    void ReadChildren(const DocumentSection& section, const nlohmann::json& row);

    DocumentStage& stage_;
    std::vector<int> places_; ///< of each amount among the columns
};
