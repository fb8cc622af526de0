#pragma once

struct sqlite3;

/// Adds the store's text comparison to a connection: a collation, and a LIKE that ignores the case
/// of all letters. The files do not depend on either, so any tool can read and check them.
namespace TextFunctions {
inline constexpr auto Collation = "HALVANE_TEXT";
void Register(sqlite3* database);
} // namespace TextFunctions
