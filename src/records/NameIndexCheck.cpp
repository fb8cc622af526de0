#include "records/NameIndexCheck.h"

#include "store/NameIndex.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
/// Where a part is missing, the repair makes the index anew as it opens the file.
Finding Of(const char* problem, const char* meaning) {
    return {
        QLatin1String(NameIndex::Table), QLatin1String(problem), 0, {}, QLatin1String(meaning), {},
        QLatin1String(NameIndex::Refill)};
}
} // namespace

QList<Finding> NameIndexCheck::Run(SQLite::Database& foods) {
    if (foods.execAndGet("PRAGMA user_version").getInt() < NameIndex::SinceVersion)
        return {};
    if (!NameIndex::Answers(foods))
        return {Of("a part of the index of names is missing or damaged", "Searches are slow.")};
    if (!NameIndex::Fits(foods))
        return {Of("the index of names does not fit the names", "Searches may miss foods.")};
    return {};
}
