#pragma once

#include "model/Nutrients.h"

#include <bitset>
#include <optional>
#include <string>

/// What the catalogue tells about a food beside its amounts.
class CatalogueFood {
public:
    static std::optional<CatalogueFood> Find(qint64 id);

    const std::string& Name() const { return name_; }
    /// The food's number in the release that it comes from; empty for an own food.
    const std::string& ReleaseNumber() const { return releaseNumber_; }
    bool Knows(Nutrient nutrient) const { return known_[size_t(nutrient)]; }
    /// A serving without a weight counts as 100 grams, and so does one of another name.
    double GramsOf(const std::string& serving) const;

    static constexpr double GramsOfAnyServing = 100;

private:
    struct Serving {
        std::string text;
        double grams;
    };
    std::string name_, releaseNumber_;
    Serving servings_[2];
    std::bitset<NutrientCount> known_;
};
