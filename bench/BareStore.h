#pragma once

#include "model/Nutrients.h"

#include <span>
#include <string>

class Connection;
class SearchTerms;
namespace SQLite {
class Database;
}

/// The store without the program: what a work is measured against.
namespace BareStore {
/// A connection of its own to the same file, with the functions that the store comes with.
SQLite::Database Open(const Connection& connection);

/// Reads every field of the first `most` rows, of all where that is negative.
void Read(SQLite::Database& database, const std::string& sql, int most = -1);

/// A statement that sums these nutrients of the logged foods, up to its conditions.
std::string SumsOf(std::span<const Nutrient> nutrients);

/// The statements of a search in all three sources.
void Search(SQLite::Database& users, SQLite::Database& foods, const SearchTerms& terms);
} // namespace BareStore
