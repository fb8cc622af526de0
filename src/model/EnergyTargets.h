#pragma once

class User;

/// In pounds. The targets of a heavier person would overflow a whole number.
inline constexpr double HeaviestWeight = 1'000'000;

/// Derives the energy target and the grams of protein, carbohydrate and fat from gender, age,
/// height, weights and activity. The three fats are a third of the total each, rounded: their sum
/// can differ from the total by one.
void DeriveEnergyTargets(User& user);
