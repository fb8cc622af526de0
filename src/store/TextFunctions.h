#pragma once

struct sqlite3;

/// Teaches a connection the text comparison of the store: the collation that the dialect names and
/// a LIKE that ignores the case of all letters. Neither is part of the files, so that any tool can
/// read and check them.
namespace TextFunctions {
inline constexpr auto Collation = "HALVANE_TEXT";
void Register(sqlite3* database);
} // namespace TextFunctions
