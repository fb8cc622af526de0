#pragma once

#include "records/document/DocumentAdder.h"
#include "records/document/DocumentRows.h"
#include "records/document/ImportReport.h"
#include "records/document/KeyGiver.h"

/// Takes the staged rows of a section that has keys into the open records. A row of the records
/// stands for at most one of them. `DocumentKeys` notes the key that each has from then on.
class KeyedMerge {
public:
    KeyedMerge(const DocumentSection& section, ImportReport& report);

    /// Whether the records never held a row of the section.
    bool IsFirst() const { return keys_.IsFirst(); }

    /// One row is the same as another if all their values are equal, but for the key.
    void Run();
    /// Afterwards a profile is also the same as another of its name, whose values are kept.
    void RunByName();

private:
    struct Row {
        std::int64_t place; ///< in its table
        std::optional<std::int64_t> key;
        std::string identity;
        std::string name;
        bool paired = false;
    };
    static std::vector<Row> Rows(const DocumentSection& section, DocumentRows::From from);
    void PairEqual();
    void PairNamed();
    void AddOthers();
    void Pair(Row& staged, Row& there);
    void Note(const Row& staged, std::int64_t key) const;

    const DocumentSection& section_;
    ImportReport& report_;
    KeyGiver keys_;
    std::vector<Row> there_;
    std::vector<Row> staged_;
};
