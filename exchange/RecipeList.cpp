#include "exchange/RecipeSearch.h"
#include "exchange/RecipeStore.h"

#include <algorithm>
#include <limits>

namespace exchange {
namespace {
using soci::into;
using soci::use;

const std::string Columns = "SELECT Place, RecipeID, RecipeName, ServingName, PrepTime, Calories,"
                            " ListedAt FROM listing ";
const std::string Order = " ORDER BY Place DESC";

/// One more than a page.
constexpr size_t Portion = RecipeStore::PageSize + 1;

template <class... Uses>
std::vector<Listed> Select(Connection& connection, const std::string& statement,
                           const Uses&... uses) {
    std::vector<Listed> rows;
    Listed row;
    connection.Each(
        statement, [&] { rows.push_back(row); }, uses..., into(row.place), into(row.id),
        into(row.name), into(row.servingName), into(row.prepTime), into(row.calories),
        into(row.listedAt));
    return rows;
}

std::vector<Listed> Newest(Connection& connection, int skip) {
    static const std::string statement =
        Columns + "WHERE Place > 0" + Order + " LIMIT " + std::to_string(Portion) + " OFFSET :skip";
    return Select(connection, statement, use(skip));
}

/// One statement for any number of places: none stands at place 0.
std::vector<Listed> At(Connection& connection, std::vector<long long> places) {
    static const std::string statement = [] {
        std::string names;
        for (size_t i = 0; i < Portion; ++i)
            names.append(names.empty() ? ":p" : ", :p").append(std::to_string(i));
        return Columns + "WHERE Place IN (" + names + ")" + Order;
    }();
    places.resize(Portion);
    return [&]<size_t... I>(std::index_sequence<I...>) {
        return Select(connection, statement, use(places[I])...);
    }
    (std::make_index_sequence<Portion>());
}
} // namespace

RecipeStore::ListPortion RecipeStore::List(const std::vector<std::string>& words, int page,
                                           std::optional<long long> from) {
    const auto skip = static_cast<size_t>(page - 1) * PageSize;
    if (words.empty())
        return {Newest(connection_, static_cast<int>(skip)), 0};
    long long newest = 0;
    connection_.First("SELECT COALESCE(MAX(Place), 0) FROM listing", into(newest));
    auto found = RecipeSearch(connection_)
                     .Find(words, std::min(from.value_or(newest), newest), skip + Portion);
    auto& places = found.places;
    const bool full = places.size() == skip + Portion;
    places.erase(places.begin(),
                 places.begin() + static_cast<std::ptrdiff_t>(std::min(skip, places.size())));
    return {At(connection_, places), full ? 0 : found.next};
}

} // namespace exchange
