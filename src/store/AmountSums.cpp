#include "store/AmountSums.h"

#include "store/AmountRows.h"

#include <cmath>

#include <sqlite3.h>

AmountSums::Adding AmountSums::OfStore() {
    constexpr int firstThatCompensates = 3'043'000;
    return sqlite3_libversion_number() < firstThatCompensates ? Adding::Plain : Adding::Compensated;
}

AmountSums::AmountSums(size_t columns, Adding adding)
    : adding_(adding)
    , sums_(columns)
    , errors_(columns)
    , known_(columns) {}

void AmountSums::Add(const AmountRows& rows) {
    days_ += rows.Days();
    for (size_t column = 0; column < known_.size(); ++column)
        known_[column] = known_[column] || rows.IsKnown(column);
    const auto add = adding_ == Adding::Plain ? &AmountSums::AddPlain : &AmountSums::AddCompensated;
    for (size_t first = 0; first < rows.Amounts().size(); first += sums_.size())
        (this->*add)(rows.Amounts().data() + first);
}

void AmountSums::AddPlain(const double* row) {
    for (double& sum : sums_)
        sum += *row++;
}

void AmountSums::AddCompensated(const double* row) {
    for (size_t column = 0; column < sums_.size(); ++column) {
        const double before = sums_[column];
        const double added = row[column];
        const double sum = sums_[column] = before + added;
        errors_[column] +=
            std::abs(before) > std::abs(added) ? (before - sum) + added : (added - sum) + before;
    }
}

std::optional<double> AmountSums::Of(size_t column) const {
    const double error = errors_[column];
    const double sum = std::isfinite(error) ? sums_[column] + error : sums_[column];
    return known_[column] && !std::isnan(sum) ? std::optional(sum) : std::nullopt;
}
