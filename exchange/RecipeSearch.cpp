#include "exchange/RecipeSearch.h"

#include "exchange/Text.h"

#include <algorithm>
#include <chrono>
#include <limits>

namespace exchange {
namespace {
using soci::into;
using soci::use;

/// Blocks of places. Words that most recipes have fill a page from the newest few; words that few
/// have must be looked for in the whole list, where a block costs next to nothing. The marks are
/// letters for private use, which no word of a recipe holds.
struct Level {
    long long size;
    const char* mark;
    int blocks; ///< that are looked at before those of the next level
};
constexpr Level Levels[] = {
    {2048, "\uE000", 4}, {16384, "\uE001", 8}, {131072, "\uE002", std::numeric_limits<int>::max()}};

/// Checked between two blocks, of which the largest takes about ten milliseconds at most.
std::chrono::milliseconds LongestSearch(long long places) {
    constexpr long long many = 131072;
    return std::chrono::milliseconds(places > many ? 15 : 6);
}

std::string BlockOf(long long place, const Level& level) {
    return level.mark + std::to_string(place / level.size);
}

/// The newest first is the order that both databases walk fastest.
long long RowOf(long long place) {
    return -place;
}

/// A query for all of the words, in the syntax of the database. Words have letters and digits only.
std::string Query(const std::vector<std::string>& words, bool embedded) {
    const char quote = embedded ? '"' : '\'';
    std::string query;
    for (const auto& word : words) {
        if (!query.empty())
            query += embedded ? " AND " : " & ";
        query.append(1, quote).append(word).append(1, quote);
    }
    return query;
}
} // namespace

void RecipeSearch::MakeTable(Connection& connection) {
    if (connection.IsEmbedded()) {
        // The words are folded already. unicode61 would fold other letters than PostgreSQL does,
        // and neither of them takes off a plural: the two would not find the same recipes.
        connection.Once("CREATE VIRTUAL TABLE search"
                        " USING fts5(Words, tokenize = 'ascii', detail = none)");
        return;
    }
    connection.Once("CREATE TABLE search (rowid BIGINT NOT NULL PRIMARY KEY,"
                    " Words TSVECTOR NOT NULL)");
    connection.Once("CREATE INDEX search_words ON search USING gin (Words)"
                    " WITH (fastupdate = off)");
}

std::vector<std::string> RecipeSearch::BlocksOf(long long place) {
    std::vector<std::string> blocks;
    for (const auto& level : Levels)
        blocks.push_back(BlockOf(place, level));
    return blocks;
}

void RecipeSearch::Add(long long place, const std::vector<std::string>& words) {
    const auto row = RowOf(place);
    const auto text = Join(words, " ") + " " + Join(BlocksOf(place), " ");
    connection_.Change(connection_.IsEmbedded()
                           ? "INSERT INTO search (rowid, Words) VALUES (:row, :words)"
                           : "INSERT INTO search (rowid, Words) VALUES"
                             " (:row, array_to_tsvector(string_to_array(trim(:words), ' ')))",
                       use(row), use(text));
}

void RecipeSearch::Remove(long long place) {
    const auto row = RowOf(place);
    connection_.Change("DELETE FROM search WHERE rowid = :row", use(row));
}

/// Finds recipes in a block, at `found.next` or below. The sums keep PostgreSQL from using the
/// primary key instead of the index of words.
void RecipeSearch::Look(const std::string& words, const std::string& block, size_t most,
                        Found& found) {
    constexpr const char* embedded = "SELECT rowid FROM search WHERE search MATCH :query"
                                     " AND rowid >= :newest ORDER BY rowid LIMIT :n";
    constexpr const char* server = "SELECT rowid FROM search WHERE Words @@ CAST(:query AS tsquery)"
                                   " AND rowid + 0 >= :newest ORDER BY rowid + 0 LIMIT :n";
    const bool isEmbedded = connection_.IsEmbedded();
    const auto query = Query({block}, isEmbedded) + (isEmbedded ? " AND " : " & ") + words;
    const auto left = static_cast<int>(most - found.places.size());
    const auto newest = RowOf(found.next);
    long long row = 0;
    connection_.Each(
        isEmbedded ? embedded : server, [&] { found.places.push_back(-row); }, use(query),
        use(newest), use(left), into(row));
}

RecipeSearch::Found RecipeSearch::Find(const std::vector<std::string>& words, long long newest,
                                       size_t most) {
    const auto query = Query(words, connection_.IsEmbedded());
    const auto end = std::chrono::steady_clock::now() + LongestSearch(newest);
    Found found{{}, newest};
    for (const auto& level : Levels)
        for (int i = 0; i < level.blocks && found.next > 0; ++i) {
            Look(query, BlockOf(found.next, level), most, found);
            if (found.places.size() == most)
                return found;
            found.next = std::max(found.next / level.size * level.size - 1, 0LL);
            if (std::chrono::steady_clock::now() > end)
                return found;
        }
    return found;
}

} // namespace exchange
