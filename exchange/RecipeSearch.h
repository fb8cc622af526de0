#pragma once

#include "exchange/Connection.h"

#include <string>
#include <vector>

namespace exchange {

/// Finds public recipes by words, with the database's own full-text search. A recipe is known by
/// its place in the list.
///
/// For two common words that never occur together, a database would read all entries of both. So
/// each recipe also has the numbers of its blocks of places as words. A search reads one block
/// after the other, newest first, and stops when it has enough or its time is up.
class RecipeSearch {
public:
    explicit RecipeSearch(Connection& connection)
        : connection_(connection) {}

    struct Found {
        std::vector<long long> places; ///< newest first
        long long next = 0;            ///< the newest place that was not searched; 0 if all were
    };
    /// At most so many, none newer than `newest`.
    Found Find(const std::vector<std::string>& words, long long newest, size_t most);

    void Add(long long place, const std::vector<std::string>& words);
    void Remove(long long place);
    static void MakeTable(Connection& connection);

    /// The words that stand for the blocks of a place.
    static std::vector<std::string> BlocksOf(long long place);

private:
    void Look(const std::string& words, const std::string& block, size_t most, Found& found);

    Connection& connection_;
};

} // namespace exchange
