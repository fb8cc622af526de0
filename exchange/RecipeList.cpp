#include "exchange/RecipeStore.h"

#include <algorithm>

namespace exchange {
namespace {
using soci::into;
using soci::use;

constexpr const char* Columns =
    "l.RecipeID, l.RecipeName, l.ServingName, l.PrepTime, l.Calories, l.ListedAt";

/// The newest recipes that have all of the words: the first word leads, the others are looked up.
std::string Statement(size_t words) {
    std::string sql = std::string("SELECT ") + Columns + " FROM ";
    if (words == 0)
        return sql + "listing l ORDER BY l.ListedAt DESC, l.RecipeID DESC LIMIT :n OFFSET :skip";
    sql += "words w JOIN listing l ON l.ListedAt = w.ListedAt AND l.RecipeID = w.RecipeID"
           " WHERE w.Word = :w0";
    for (size_t i = 1; i < words; ++i)
        sql += " AND EXISTS (SELECT 1 FROM words o WHERE o.Word = :w" + std::to_string(i) +
               " AND o.ListedAt = w.ListedAt AND o.RecipeID = w.RecipeID)";
    return sql + " ORDER BY w.ListedAt DESC, w.RecipeID DESC LIMIT :n OFFSET :skip";
}

template <size_t Count>
std::vector<Listed> Select(Connection& connection, const std::vector<std::string>& words,
                           int skip) {
    static const std::string statement = Statement(Count);
    std::vector<Listed> found;
    Listed row;
    double calories = 0;
    soci::indicator caloriesAre = soci::i_null;
    const auto keep = [&] {
        row.calories = caloriesAre == soci::i_ok ? std::optional(calories) : std::nullopt;
        found.push_back(row);
    };
    const int most = RecipeStore::PageSize + 1;
    [&]<size_t... I>(std::index_sequence<I...>) {
        connection.Each(statement, keep, use(words[I])..., use(most), use(skip), into(row.id),
                        into(row.name), into(row.servingName), into(row.prepTime),
                        into(calories, caloriesAre), into(row.listedAt));
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
