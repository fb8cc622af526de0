#include "records/document/CountedMerge.h"

#include "records/document/DocumentAdder.h"
#include "records/document/DocumentRows.h"

#include <unordered_map>

namespace {
using Counts = std::unordered_map<std::string, int>;

Counts RowsThere(const DocumentSection& section) {
    Counts there;
    for (DocumentRows rows(section, DocumentRows::From::Records); rows.Next();)
        ++there[rows.Identity()];
    return there;
}

bool Take(Counts& there, const std::string& identity) {
    const auto same = there.find(identity);
    if (same == there.end() || same->second == 0)
        return false;
    --same->second;
    return true;
}
} // namespace

void CountedMerge::Run(const DocumentSection& section, ImportReport& report) {
    Counts there = RowsThere(section);
    DocumentAdder adder(section);
    ImportReport::Count& count = report.counts[section.name];
    for (DocumentRows staged(section, DocumentRows::From::Stage); staged.Next();) {
        if (Take(there, staged.Identity())) {
            ++count.there;
            continue;
        }
        adder.Add(staged.Row());
        ++count.added;
    }
}
