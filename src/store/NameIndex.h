#pragma once

namespace SQLite {
class Database;
}

/// The index of the catalogue: the trigrams of the names of all foods, in FOODS_Trigrams, kept by
/// triggers. A search uses it only to leave out foods that cannot match, so it may hold too much.
/// It may lack nothing but names with a NUL character, whose end the store does not index:
/// FOODS_Unindexed lists these.
///
/// It is derived from FOODS: it can be made anew at any time, and without it all searches still
/// give the same.
namespace NameIndex {
inline constexpr int SinceVersion = 3;          ///< of the schema
inline constexpr auto Table = "FOODS_Trigrams"; ///< the names of all its parts begin with this

/// Whether all its parts are there and it answers. What it answers is not checked. FOODS may be in
/// a file that is open together with another.
bool Answers(SQLite::Database& foods);
/// Whether it holds what FOODS holds. It must answer. Works on a copy, because the store checks
/// its index only where it may write. Fails while another process commits.
bool Fits(SQLite::Database& foods);
/// Whatever is left of it, in one transaction.
void MakeAnew(SQLite::Database& foods);

/// Fills it again, if it answers.
inline constexpr auto Refill =
    "INSERT INTO FOODS_Trigrams (FOODS_Trigrams) VALUES ('delete-all');"
    "INSERT INTO FOODS_Trigrams (rowid, FoodName) SELECT ID, FoodName FROM FOODS ORDER BY ID";
/// Joins its pieces, which many changes leave: it then takes half the place.
inline constexpr auto Compaction =
    "INSERT INTO FOODS_Trigrams (FOODS_Trigrams) VALUES ('optimize')";
} // namespace NameIndex
