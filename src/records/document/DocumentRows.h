#pragma once

#include "records/document/DocumentSection.h"
#include "store/Prepared.h"

#include <optional>

class JsonText;

/// The rows of a section, one after the other, each as the text that stands for it in a document.
/// They come from the open records, or from the stage to which a document was read.
class DocumentRows {
public:
    enum class From { Records, Stage };
    DocumentRows(const DocumentSection& section, From from);

    bool Next(); ///< before the first row, too; false behind the last one
    void AddTo(JsonText& text);

    std::int64_t Row() const; ///< its place in its table
    std::optional<std::int64_t> Key() const;
    std::string Text(int field) const;  ///< of a field that holds a text; else empty
    std::string Identity();             ///< the same for rows that differ in the key alone
    std::string Start(int count) const; ///< the text of its first fields

    void StandIn(std::int64_t parent); ///< goes to the rows that stand in that one

private:
    void AddFields(JsonText& text, int count) const;
    void AddAmounts(JsonText& text) const;
    void AddChildren(JsonText& text);
    void AddAllButKey(JsonText& text);

    const DocumentSection& section_;
    Prepared rows_;
    std::vector<std::string> captions_; ///< of the fields
    std::unique_ptr<DocumentRows> children_;
};
