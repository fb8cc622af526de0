#include "exchange/RecipeStore.h"

#include <algorithm>

namespace exchange {
namespace {
using soci::into;
using soci::use;

const std::string Columns =
    "SELECT l.RecipeID, l.RecipeName, l.ServingName, l.PrepTime, l.Calories, l.ListedAt FROM ";
const std::string Portion = " LIMIT " + std::to_string(RecipeStore::PageSize + 1) + " OFFSET :skip";

/// The newest recipes that have all of the words: the first word leads, the others are looked up.
/// The rows that are shown are chosen from the keys alone, in the order of the key, so that no
/// database has a reason to sort them. One more than a page is chosen.
std::string Statement(size_t words) {
    if (words == 0)
        return Columns + "listing l ORDER BY l.ListedAt DESC, l.RecipeID DESC" + Portion;
    std::string keys = "SELECT k.ListedAt, k.RecipeID FROM words k WHERE k.Word = :w0";
    for (size_t i = 1; i < words; ++i)
        keys += " AND EXISTS (SELECT 1 FROM words o WHERE o.Word = :w" + std::to_string(i) +
                " AND o.ListedAt = k.ListedAt AND o.RecipeID = k.RecipeID)";
    keys += " ORDER BY k.ListedAt DESC, k.RecipeID DESC" + Portion;
    return Columns + "(" + keys +
           ") f JOIN listing l ON l.ListedAt = f.ListedAt AND l.RecipeID = f.RecipeID"
           " ORDER BY f.ListedAt DESC, f.RecipeID DESC";
}

template <size_t Count>
std::vector<Listed> Select(Connection& connection, const std::vector<std::string>& words,
                           int skip) {
    static const std::string statement = Statement(Count);
    std::vector<Listed> found;
    Listed row;
    const auto keep = [&] { found.push_back(row); };
    [&]<size_t... I>(std::index_sequence<I...>) {
        connection.Each(statement, keep, use(words[I])..., use(skip), into(row.id), into(row.name),
                        into(row.servingName), into(row.prepTime), into(row.calories),
                        into(row.listedAt));
    }
    (std::make_index_sequence<Count>());
    return found;
}
} // namespace

std::vector<Listed> RecipeStore::List(const std::vector<std::string>& words, int page) {
    using Selection = std::vector<Listed> (*)(Connection&, const std::vector<std::string>&, int);
    constexpr Selection selections[] = {Select<0>, Select<1>, Select<2>,
                                        Select<3>, Select<4>, Select<5>};
    static_assert(std::size(selections) == MostWords + 1);
    return selections[std::min(words.size(), MostWords)](connection_, words, (page - 1) * PageSize);
}

} // namespace exchange
