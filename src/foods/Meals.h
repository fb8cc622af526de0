#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <optional>

/// The meals of a day, in order. A row of the log holds the name of its meal, or an empty text.
namespace Meals {
inline constexpr std::array<const char*, 4> Names{"Breakfast", "Lunch", "Dinner", "Snacks"};

QString NameOf(int meal);
std::optional<int> Find(QStringView name); ///< the meal of that name, whatever the case

/// The meal that a search panel had ticked when it closed last; empty if there was none.
std::optional<int> LastTicked();
} // namespace Meals
