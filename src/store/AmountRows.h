#pragma once

#include <set>
#include <span>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_value;

/// Amounts of logged rows, and the days of these rows. A statement fills it while it runs, because
/// reading result row by result row takes twice as long: it selects `Function`(?, day, amount, ...)
/// with the object bound as a pointer of the type `Pointer`.
class AmountRows {
public:
    static constexpr auto Function = "keep_amounts";
    static constexpr auto Pointer = "AmountRows";
    static void Register(sqlite3* database); ///< adds the function to a connection

    explicit AmountRows(size_t columns);
    void Append(std::span<sqlite3_value*> row); ///< the day, then the amounts

    size_t Columns() const { return known_.size(); }
    /// Row by row. An unknown amount is -0.0: added to a sum, it leaves the sum as it is.
    const std::vector<double>& Amounts() const { return amounts_; }
    bool IsKnown(size_t column) const { return known_[column] != 0; } ///< in one row at least
    int Days() const { return static_cast<int>(days_.size()); }       ///< different ones

private:
    void NoteDay(sqlite3_value* day);

    std::vector<double> amounts_;
    std::vector<unsigned char> known_;
    std::set<std::string> days_;
    std::string latestDay_;
};
