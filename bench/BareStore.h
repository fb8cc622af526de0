#pragma once

#include "model/Nutrients.h"

#include <span>
#include <string>

class Connection;
class SearchTerms;
namespace SQLite {
class Database;
}

/// The bare store without the program: the limit of a benchmark.
namespace BareStore {
/// A separate connection to the same file, with the store's own functions.
SQLite::Database Open(const Connection& connection);

/// Reads every field of the first `most` rows; of all rows if it is negative.
void Read(SQLite::Database& database, const std::string& sql, int most = -1);

/// A statement that sums these nutrients of the logged foods, without its conditions.
std::string SumsOf(std::span<const Nutrient> nutrients);

/// The statements of a search in all three sources.
void Search(SQLite::Database& users, SQLite::Database& foods, const SearchTerms& terms);
} // namespace BareStore
