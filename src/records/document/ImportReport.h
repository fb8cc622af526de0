#pragma once

#include <QString>

#include <map>
#include <string>
#include <vector>

/// What an import of a document did, or would do.
struct ImportReport {
    struct Count {
        int added = 0;
        int there = 0; ///< equal rows were there already
    };
    std::map<std::string, Count> counts; ///< by the name of the section
    Count CountOf(const std::string& section) const {
        const auto found = counts.find(section);
        return found == counts.end() ? Count() : found->second;
    }
    std::vector<QString> kept;    ///< a sentence for each row that is there with other data
    std::vector<QString> refused; ///< a sentence for each row that nobody could find again
    bool settings = false;        ///< the settings of the document were taken
};
