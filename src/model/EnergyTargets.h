#pragma once

class User;

/// In pounds. Heavier entries are refused: their targets would not fit a whole number.
inline constexpr double HeaviestWeight = 1'000'000;

/// Derives the energy target and the grams of protein, carbohydrate and fat from the person's
/// gender, age, height, weights and activity. Total fat is left as derived from the energy: its
/// three thirds, rounded each, may differ from it by one.
void DeriveEnergyTargets(User& user);
