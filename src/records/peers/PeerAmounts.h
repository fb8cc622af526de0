#pragma once

#include "model/NutrientAmounts.h"
#include "records/peers/Units.h"

#include <span>
#include <vector>

class PeerTable;
struct Imported;
struct PeerChoices;

/// Which amount a named number of a file is.
struct AmountColumn {
    const char* name;
    Nutrient nutrient;
    Unit unit;
};

/// Turns the numbers of a file into amounts, as a person's choices say.
class AmountRules {
public:
    AmountRules(const PeerChoices& choices, Imported& into)
        : choices_(choices)
        , into_(into) {}

    /// Sets the amount, unless the number is unknown or another column gave the amount before.
    /// Fails for a number that is no amount.
    void Take(NutrientAmounts& amounts, const AmountColumn& column,
              std::optional<double> value) const;

private:
    const PeerChoices& choices_;
    Imported& into_;
};

/// The columns of a table that give amounts.
class AmountColumns {
public:
    AmountColumns(const PeerTable& table, std::span<const AmountColumn> columns,
                  const AmountRules& rules);

    bool IsEmpty() const { return columns_.empty(); }
    NutrientAmounts Of(const PeerTable& row) const;

private:
    struct Placed {
        int place;
        AmountColumn column;
    };
    std::vector<Placed> columns_;
    const AmountRules& rules_;
};

namespace PeerAmounts {
/// Amount / `of` * `eaten`, for amounts that a file gives for `of` of something.
NutrientAmounts Scaled(const NutrientAmounts& amounts, double of, double eaten);
void RequireSound(const NutrientAmounts& amounts); ///< fails for more than anybody eats
} // namespace PeerAmounts
