#include "BareStore.h"
#include "Ground.h"
#include "Table.h"

#include "foods/FoodSearch.h"
#include "foods/SearchTerms.h"
#include "store/Connection.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
void SearchOurs(benchmark::State& state, const char* term) {
    const Ground ground(false);
    for (auto _ : state) {
        const FoodList foods =
            FoodSearch::Find(SearchTerms(QString::fromLatin1(term)), {true, true, true});
        benchmark::DoNotOptimize(foods.Count());
    }
}

void SearchLimit(benchmark::State& state, const char* term) {
    const Ground ground(false);
    SQLite::Database users = BareStore::Open(UserDB());
    SQLite::Database foods = BareStore::Open(FoodDB());
    const SearchTerms terms(QString::fromLatin1(term));
    for (auto _ : state)
        BareStore::Search(users, foods, terms);
}

[[maybe_unused]] const bool aims = [] {
    Table::Aim("search of one word, three sources", 2);
    Table::Aim("search of three words, three sources", 2);
    return true;
}();
} // namespace

BENCHMARK_CAPTURE(SearchOurs, one, "milk")->Name("search of one word, three sources/ours");
BENCHMARK_CAPTURE(SearchLimit, one, "milk")->Name("search of one word, three sources/limit");
BENCHMARK_CAPTURE(SearchOurs, three, "milk whole dry")
    ->Name("search of three words, three sources/ours");
BENCHMARK_CAPTURE(SearchLimit, three, "milk whole dry")
    ->Name("search of three words, three sources/limit");
