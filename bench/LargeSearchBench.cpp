#include "BareStore.h"
#include "Ground.h"
#include "Table.h"

#include "foods/FoodSearch.h"
#include "foods/SearchTerms.h"
#include "store/Connection.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <memory>

/// Searches a catalogue that somebody has made large. HALVANE_BENCH_SEARCH says how many foods the
/// user has; without it nothing is measured.
namespace {
struct Term {
    const char* name;
    const char* term;
    double aim;
};
constexpr Term Terms[] = {{"a rare word", "quinoa", 0.05},
                          {"three words", "milk whole dry", 1},
                          {"a fifth of all names", "with", 2},
                          {"two letters", "ab", 2}};

/// The names of the catalogue, each with many numbers.
void AddFoods(int count) {
    FoodDB().Raw().exec(
        "WITH RECURSIVE lot (number) AS (SELECT 1 UNION ALL SELECT number + 1 FROM lot), "
        "stock AS MATERIALIZED (SELECT FoodName, Serv_Desc_A, Serv_Desc_B FROM FOODS) "
        "INSERT INTO FOODS (ID, FoodName, Serv_Desc_A, Serv_Desc_B) "
        "SELECT 23508 + row_number() OVER (), FoodName || ', lot ' || number, Serv_Desc_A, "
        "Serv_Desc_B FROM (SELECT * FROM lot CROSS JOIN stock LIMIT " +
        std::to_string(count) + ")");
}

/// Made once, because it takes longer than all searches.
void RequireLarge() {
    static std::unique_ptr<Ground> ground;
    if (ground)
        return;
    ground = std::make_unique<Ground>(false);
    AddFoods(qEnvironmentVariableIntValue("HALVANE_BENCH_SEARCH"));
}

void Ours(benchmark::State& state, const SearchTerms& terms) {
    RequireLarge();
    for (auto _ : state)
        benchmark::DoNotOptimize(FoodSearch::Find(terms, {true, true, true}).Count());
}

void Limit(benchmark::State& state, const SearchTerms& terms) {
    RequireLarge();
    SQLite::Database users = BareStore::Open(UserDB());
    SQLite::Database foods = BareStore::Open(FoodDB());
    for (auto _ : state)
        BareStore::Search(users, foods, terms);
}

[[maybe_unused]] const bool registered = [] {
    if (qEnvironmentVariableIntValue("HALVANE_BENCH_SEARCH") <= 0)
        return false;
    for (const auto& [name, term, aim] : Terms) {
        const std::string work = std::string("search of many foods, ") + name;
        const SearchTerms terms{QString::fromLatin1(term)};
        Table::Aim(work, aim);
        benchmark::RegisterBenchmark((work + "/ours").c_str(),
                                     [terms](auto& state) { Ours(state, terms); });
        benchmark::RegisterBenchmark((work + "/limit").c_str(),
                                     [terms](auto& state) { Limit(state, terms); });
    }
    return true;
}();
} // namespace
