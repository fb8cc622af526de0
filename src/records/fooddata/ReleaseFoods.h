#pragma once

#include <QString>

#include <functional>

class FoodFilter;
class FoodTally;
struct CustomFood;

/// The foods of a USDA release, each with its first measure as its serving. Their numbers are those
/// of the same foods in a download of FoodData Central.
namespace ReleaseFoods {
void Read(const QString& folder, const FoodFilter& filter, FoodTally& tally,
          const std::function<void(const QString& number, const CustomFood& food)>& take);
} // namespace ReleaseFoods
