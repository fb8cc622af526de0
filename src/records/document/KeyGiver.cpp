#include "records/document/KeyGiver.h"

#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "store/Schema.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr std::int64_t LastKey = std::numeric_limits<std::int32_t>::max();

bool IsOfFoods(const DocumentSection& section) {
    return &section == &DocumentSections::Foods;
}

/// Keys of foods are given again; all others are counted.
std::int64_t HighestEver(const DocumentSection& section) {
    const std::string table = section.table;
    const std::string given =
        IsOfFoods(section)
            ? std::to_string(Schema::LastStockFood)
            : "(SELECT CAST(max(seq) AS INTEGER) FROM sqlite_sequence WHERE name = '" + table +
                  "')";
    return UserDB()
        .Raw()
        .execAndGet("SELECT max(ifnull(" + given + ", 0), ifnull((SELECT max(" + section.key +
                    ") FROM " + table + "), 0))")
        .getInt64();
}

bool HasRows(const DocumentSection& section) {
    return UserDB()
               .Raw()
               .execAndGet(std::string("SELECT EXISTS (SELECT 1 FROM ") + section.table +
                           " WHERE " + section.rows + ")")
               .getInt() != 0;
}

struct Reference {
    const DocumentSection& section;
    const char* rows; ///< those that refer to a key
};

/// What was logged of a food stays as it was when another food gets its key.
const Reference References[] = {
    {DocumentSections::Profiles, "SELECT 1 FROM USER_FOODS WHERE UID = ?"},
    {DocumentSections::Profiles, "SELECT 1 FROM USER_WEIGHTS WHERE UID = ?"},
    {DocumentSections::Recipes, "SELECT 1 FROM Ingredients WHERE RecipeID = ?"},
};

bool IsReferredTo(const DocumentSection& section, std::int64_t key) {
    for (const Reference& reference : References) {
        if (&reference.section != &section)
            continue;
        SQLite::Statement rows(UserDB().Raw(), reference.rows);
        rows.bind(1, key);
        if (rows.executeStep())
            return true;
    }
    return false;
}
} // namespace

KeyGiver::KeyGiver(const DocumentSection& section)
    : section_(section)
    , highest_(HighestEver(section))
    , first_(highest_ == (IsOfFoods(section) ? Schema::LastStockFood : 0) && !HasRows(section)) {}

bool KeyGiver::IsFree(std::int64_t key) const {
    if (key <= given_ || IsReferredTo(section_, key))
        return false;
    if (first_)
        return !IsOfFoods(section_) || key > Schema::LastStockFood;
    return key > highest_ && key <= LastKey;
}

std::int64_t KeyGiver::KeyFor(std::optional<std::int64_t> wanted) {
    const std::int64_t key = wanted && IsFree(*wanted) ? *wanted : NextFree();
    given_ = std::max(given_, key);
    if (key <= LastKey)
        highest_ = std::max(highest_, key);
    return key;
}

std::int64_t KeyGiver::NextFree() const {
    for (std::int64_t key = highest_ + 1; key <= LastKey; ++key)
        if (!IsReferredTo(section_, key))
            return key;
    throw RuntimeError(ErrorNumber::Overflow,
                       QStringLiteral("There is no key left for a new row of %1.")
                           .arg(QLatin1String(section_.name)));
}
