#pragma once

#include "records/document/DocumentSection.h"

#include <limits>
#include <optional>

/// Gives the rows that an import adds to a section their keys. Where the records hold no row of the
/// section and never did, a row keeps its key. Elsewhere it keeps it if it is above every key that
/// was ever given. What a deleted row left behind never becomes a new row's: a key that some row
/// refers to is not given. Keys are given in growing order.
class KeyGiver {
public:
    explicit KeyGiver(const DocumentSection& section);

    bool IsFirst() const { return first_; }
    std::int64_t Highest() const { return highest_; }        ///< of the keys that were ever given
    std::int64_t KeyFor(std::optional<std::int64_t> wanted); ///< fails where none is left

private:
    bool IsFree(std::int64_t key) const;
    std::int64_t NextFree() const;

    const DocumentSection& section_;
    std::int64_t highest_; ///< of the keys that were ever given
    bool first_;
    std::int64_t given_ = std::numeric_limits<std::int64_t>::min(); ///< the last one
};
