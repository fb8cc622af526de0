#pragma once

#include "exchange/Connection.h"

#include <string>
#include <vector>

namespace exchange {

/// Finds public recipes by words, with the database's own full-text search. A recipe is known by
/// its place in the list.
///
/// Two common words that never meet would make a database walk all of both. So each recipe also has
/// the numbers of its blocks of places as words. A search asks for one block after the other,
/// the newest first, and stops when it has enough or has taken its time.
class RecipeSearch {
public:
    explicit RecipeSearch(Connection& connection)
        : connection_(connection) {}

    struct Found {
        std::vector<long long> places; ///< newest first
        long long next = 0;            ///< the newest place that was not looked at; 0 if all were
    };
    /// At most so many, none newer than `newest`.
    Found Find(const std::vector<std::string>& words, long long newest, size_t most);

    void Add(long long place, const std::vector<std::string>& words);
    void Remove(long long place);
    static void MakeTable(Connection& connection);

    /// The words of a place that are not those of its recipe.
    static std::vector<std::string> BlocksOf(long long place);

private:
    void Look(const std::string& words, const std::string& block, size_t most, Found& found);

    Connection& connection_;
};

} // namespace exchange
