#pragma once

#include "model/Nutrients.h"

#include <QStringView>

#include <optional>

/// The unit in which a file gives an amount.
enum class Unit {
    Gram,
    Milligram,
    Microgram,
    Kilocalorie,
    Kilojoule,
    InternationalUnit,
    RetinolEquivalent, ///< microgram RAE of vitamin A
    GramOfSalt,        ///< for sodium
};

/// What a microgram RAE of vitamin A is taken for. There is no exact conversion: it depends on what
/// the food holds.
enum class VitaminASource { Unknown, Retinol, BetaCarotene };

enum class WeightUnit { Kilogram, Pound };

namespace Units {
/// The amount in the nutrient's own unit. Empty if the unit does not suit the nutrient, or is left
/// out.
std::optional<double> Amount(double value, Unit unit, Nutrient nutrient, VitaminASource source);
std::optional<Unit> Named(QStringView name); ///< "g", "mg", "mcg" or "\u00b5g", "kcal", "kJ", ...
double Pounds(double weight, WeightUnit unit);
std::optional<WeightUnit> WeightNamed(QStringView name); ///< "kg", "lb", "lbs"
} // namespace Units
