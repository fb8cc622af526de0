#include "exchange/RecipeSearch.h"

#include "exchange/Text.h"

#include <chrono>

namespace exchange {
namespace {
using soci::into;
using soci::use;

/// Small blocks for words that most recipes have, large ones for words that few have. The marks are
/// letters for private use, which no word of a recipe holds.
constexpr long long SmallBlock = 2048;
constexpr long long LargeBlock = 16384;
constexpr const char* SmallMark = "\uE000";
constexpr const char* LargeMark = "\uE001";
constexpr int SmallBlocksFirst = 4;

/// Checked between two blocks; one takes a few milliseconds at most.
constexpr std::chrono::milliseconds LongestSearch(15);

std::string BlockOf(long long place, bool small) {
    return (small ? SmallMark : LargeMark) +
           std::to_string(place / (small ? SmallBlock : LargeBlock));
}

/// All of the words, in the language of the database. They hold letters and digits only.
std::string Query(const std::vector<std::string>& words, bool embedded) {
    const std::string quote = embedded ? "\"" : "'";
    std::string query;
    for (const auto& word : words)
        query.append(query.empty() ? "" : embedded ? " AND " : " & ").append(quote + word + quote);
    return query;
}
} // namespace

void RecipeSearch::MakeTable(Connection& connection) {
    if (connection.IsEmbedded()) {
        // Words come folded and parted, so that the plainest tokenizer does.
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
    return {BlockOf(place, true), BlockOf(place, false)};
}

void RecipeSearch::Add(long long place, const std::vector<std::string>& words) {
    const auto text = Join(words, " ") + " " + Join(BlocksOf(place), " ");
    connection_.Change(connection_.IsEmbedded()
                           ? "INSERT INTO search (rowid, Words) VALUES (:place, :words)"
                           : "INSERT INTO search (rowid, Words) VALUES"
                             " (:place, array_to_tsvector(string_to_array(trim(:words), ' ')))",
                       use(place), use(text));
}

void RecipeSearch::Remove(long long place) {
    connection_.Change("DELETE FROM search WHERE rowid = :place", use(place));
}

/// Finds what stands in a block at `found.next` or below. The sums keep PostgreSQL from walking the
/// key instead of the words.
void RecipeSearch::Look(const std::string& words, const std::string& block, size_t most,
                        Found& found) {
    constexpr const char* embedded = "SELECT rowid FROM search WHERE search MATCH :query"
                                     " AND rowid <= :newest ORDER BY rowid DESC LIMIT :n";
    constexpr const char* server = "SELECT rowid FROM search WHERE Words @@ CAST(:query AS tsquery)"
                                   " AND rowid + 0 <= :newest ORDER BY rowid + 0 DESC LIMIT :n";
    const bool isEmbedded = connection_.IsEmbedded();
    const auto query = Query({block}, isEmbedded) + (isEmbedded ? " AND " : " & ") + words;
    const auto left = static_cast<int>(most - found.places.size());
    long long place = 0;
    connection_.Each(
        isEmbedded ? embedded : server, [&] { found.places.push_back(place); }, use(query),
        use(found.next), use(left), into(place));
}

RecipeSearch::Found RecipeSearch::Find(const std::vector<std::string>& words, long long newest,
                                       size_t most) {
    const auto query = Query(words, connection_.IsEmbedded());
    const auto end = std::chrono::steady_clock::now() + LongestSearch;
    Found found{{}, newest};
    for (int block = 0; found.next > 0; ++block) {
        const bool small = block < SmallBlocksFirst;
        Look(query, BlockOf(found.next, small), most, found);
        if (found.places.size() == most)
            return found;
        const auto size = small ? SmallBlock : LargeBlock;
        found.next = found.next / size * size - 1;
        if (std::chrono::steady_clock::now() > end)
            break;
    }
    found.next = std::max(found.next, 0LL);
    return found;
}

} // namespace exchange
