#pragma once

#include <optional>
#include <vector>

class AmountRows;

/// Sums of columns of amounts, equal to the store's SUM to the last bit if the rows come in the
/// same order. SQLite adds plainly before version 3.43. From then on it also adds up the errors of
/// rounding (Kahan, Babuska, Neumaier), and so do we.
class AmountSums {
public:
    enum class Adding { Plain, Compensated };
    static Adding OfStore(); ///< as the store in use adds

    explicit AmountSums(size_t columns, Adding adding = OfStore());
    void Add(const AmountRows& rows); ///< of other days than those before

    std::optional<double> Of(size_t column) const; ///< nothing where SUM gives NULL
    int Days() const { return days_; }             ///< days with a row

private:
    void AddPlain(const double* row);
    void AddCompensated(const double* row);

    Adding adding_;
    std::vector<double> sums_;
    std::vector<double> errors_; ///< of rounding; 0 unless compensated
    std::vector<bool> known_;
    int days_ = 0;
};
