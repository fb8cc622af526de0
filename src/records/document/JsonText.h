#pragma once

#include <cstdint>
#include <string>
#include <string_view>

struct sqlite3_stmt;

/// A JSON text that grows at its end. A value reads back as the very value that was stored. What
/// JSON has no form for becomes an object of one member: {"number": "Infinity"}, {"binary": BASE64}
/// for bytes, and {"text": BASE64} for a text that is not UTF-8.
class JsonText {
public:
    void Add(std::string_view json) { text_ += json; } ///< as it is
    void AddWhole(std::int64_t value);
    void AddReal(double value); ///< the fewest digits that read back as the same number
    void AddText(std::string_view text);
    void AddColumn(sqlite3_stmt* row, int column); ///< as it is stored

    const std::string& Text() const { return text_; }
    void Clear() { text_.clear(); }

private:
    void AddOdd(std::string_view member, std::string_view bytes);

    std::string text_;
};
