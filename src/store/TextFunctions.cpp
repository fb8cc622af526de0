#include "store/TextFunctions.h"

#include "store/LikePattern.h"
#include "store/TextCompare.h"

#include <sqlite3.h>

namespace {
std::string_view View(const void* text, int bytes) {
    return {static_cast<const char*>(text), static_cast<size_t>(bytes)};
}

std::string_view View(sqlite3_value* value) {
    const void* text = sqlite3_value_text(value);
    return View(text, sqlite3_value_bytes(value));
}

void DeletePattern(void* pattern) {
    delete static_cast<LikePattern*>(pattern);
}

/// The pattern is the same for all rows of a statement, so it is prepared once.
void Like(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL ||
        sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return;
    const std::string_view text = View(arguments[1]);
    if (const void* known = sqlite3_get_auxdata(context, 0)) {
        sqlite3_result_int(context, static_cast<const LikePattern*>(known)->Matches(text));
        return;
    }
    auto* pattern = new LikePattern(View(arguments[0]));
    sqlite3_result_int(context, pattern->Matches(text));
    sqlite3_set_auxdata(context, 0, pattern, DeletePattern);
}

int Compare(void*, int leftBytes, const void* left, int rightBytes, const void* right) {
    return TextCompare::Compare(View(left, leftBytes), View(right, rightBytes));
}
} // namespace

void TextFunctions::Register(sqlite3* database) {
    sqlite3_create_function(database, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, Like,
                            nullptr, nullptr);
    sqlite3_create_collation(database, Collation, SQLITE_UTF8, nullptr, Compare);
}
