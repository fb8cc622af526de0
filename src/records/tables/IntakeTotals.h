#pragma once

#include "model/Nutrients.h"

#include <array>
#include <optional>

class LogReading;

/// The sums over entries of the log, each with its coverage: the share of the logged grams whose
/// amount is known.
class IntakeTotals {
public:
    void Add(const LogReading& entry);

    int Entries() const { return entries_; }
    double Grams() const { return grams_; }
    std::optional<double> Amount(Nutrient nutrient) const;   ///< nothing where none is known
    std::optional<double> Coverage(Nutrient nutrient) const; ///< 0 to 1; nothing without grams

private:
    struct Sum {
        double amount = 0;
        double grams = 0; ///< of the entries whose amount is known
        bool known = false;
    };
    int entries_ = 0;
    double grams_ = 0;
    std::array<Sum, NutrientCount> sums_;
};
