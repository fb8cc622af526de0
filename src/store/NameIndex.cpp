#include "store/NameIndex.h"

#include "store/SchemaSteps.h"

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

namespace {
/// The catalogue is the last file that was opened.
constexpr auto CatalogueName = "SELECT name FROM pragma_database_list WHERE name <> 'temp' "
                               "ORDER BY seq DESC LIMIT 1";
constexpr auto Parts = ".sqlite_schema WHERE name IN ('FOODS_Trigrams', 'FOODS_Trigrams_Added', "
                       "'FOODS_Trigrams_Removed', 'FOODS_Trigrams_Changed', 'FOODS_Unindexed')";
constexpr int PartsCount = 5;

/// Of the foods with the least and the greatest key, how many it does not find. A damaged index may
/// answer that nothing matches.
constexpr auto NotFound = R"(
SELECT count(*) FROM FOODS AS f
WHERE ID IN ((SELECT min(ID) FROM FOODS), (SELECT max(ID) FROM FOODS))
    AND FoodName GLOB '[ -~][ -~][ -~]*'
    AND NOT EXISTS (
        SELECT 1 FROM FOODS_Trigrams WHERE rowid = f.ID AND FOODS_Trigrams MATCH
            '"' || replace(substr(f.FoodName, 1, 3), '"', '""') || '"')
)";

// The store removes its index only if it finds the index's tables, its version
// and what it writes in an empty one.
constexpr auto Removing = R"(
DROP TRIGGER IF EXISTS FOODS_Trigrams_Added;
DROP TRIGGER IF EXISTS FOODS_Trigrams_Removed;
DROP TRIGGER IF EXISTS FOODS_Trigrams_Changed;
DROP INDEX IF EXISTS FOODS_Unindexed;
CREATE TABLE IF NOT EXISTS FOODS_Trigrams_data (id INTEGER PRIMARY KEY, block BLOB);
REPLACE INTO FOODS_Trigrams_data VALUES (1, x''), (10, x'00000000000000');
CREATE TABLE IF NOT EXISTS FOODS_Trigrams_idx (
    segid, term, pgno, PRIMARY KEY (segid, term)) WITHOUT ROWID;
CREATE TABLE IF NOT EXISTS FOODS_Trigrams_config (k PRIMARY KEY, v) WITHOUT ROWID;
REPLACE INTO FOODS_Trigrams_config VALUES ('version', 4);
DROP TABLE IF EXISTS FOODS_Trigrams;
DROP TABLE IF EXISTS FOODS_Trigrams_config;
DROP TABLE IF EXISTS FOODS_Trigrams_data;
DROP TABLE IF EXISTS FOODS_Trigrams_idx;
)";

bool HasAllParts(SQLite::Database& foods) {
    const std::string catalogue = foods.execAndGet(CatalogueName).getString();
    return foods.execAndGet("SELECT count(*) FROM " + catalogue + Parts).getInt() == PartsCount;
}

} // namespace

bool NameIndex::Answers(SQLite::Database& foods) {
    try {
        return HasAllParts(foods) && foods.execAndGet(NotFound).getInt() == 0;
    } catch (const SQLite::Exception&) {
        return false;
    }
}

bool NameIndex::Fits(SQLite::Database& foods) {
    SQLite::Database copy("", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    if (const int result = SQLite::Backup(copy, foods).executeStep(); result != SQLITE_DONE)
        throw SQLite::Exception(foods.getHandle(), result);
    try {
        copy.exec("INSERT INTO FOODS_Trigrams (FOODS_Trigrams, rank) VALUES "
                  "('integrity-check', 1)");
        return true;
    } catch (const SQLite::Exception&) {
        return false;
    }
}

void NameIndex::MakeAnew(SQLite::Database& foods) {
    SQLite::Transaction transaction(foods);
    foods.exec(Removing);
    foods.exec(SchemaSteps()[SinceVersion - 1].foods);
    transaction.commit();
}
