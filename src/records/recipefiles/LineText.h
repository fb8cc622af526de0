#pragma once

#include <QString>

#include <optional>

/// Writes ingredients that a file has in parts as lines, as people write them.
namespace LineText {
/// "1.5 cup brown lentils, rinsed". A quantity of 0 is left out.
QString Of(double quantity, const QString& unit, const QString& food, const QString& note);

std::optional<double> FirstNumber(const QString& text); ///< "212 kcal" is 212
} // namespace LineText
