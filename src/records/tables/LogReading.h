#pragma once

#include "analysis/Period.h"
#include "records/tables/CatalogueFood.h"
#include "store/RowReader.h"

#include <unordered_map>

/// Walks what the current user has logged in a period, day by day and in the order of entry, with
/// what the catalogue tells about each entry.
///
/// The log keeps 0 where the catalogue knew no amount. Such an amount is unknown here: the entry is
/// of a food of the catalogue (key and name are the same), and that food has no value.
class LogReading {
public:
    explicit LogReading(const Period& period);

    bool Next();
    QDate Day() const;
    std::string Meal() const;
    std::string FoodName() const { return name_; }
    std::string Serving() const;
    std::optional<double> Quantity() const;
    std::optional<double> Key() const; ///< of the food or the recipe
    /// Empty for all but a food of a release.
    std::string ReleaseNumber() const { return food_ ? food_->ReleaseNumber() : std::string(); }
    std::optional<double> Amount(Nutrient nutrient) const;
    /// Own foods, recipes and foods that are gone weigh 100 grams a serving.
    double Grams() const;

private:
    const CatalogueFood* FoodOfEntry();

    RowReader row_;
    std::unordered_map<qint64, std::optional<CatalogueFood>> foods_; ///< each is read once
    std::string name_;
    const CatalogueFood* food_ = nullptr; ///< that the entry was logged from, if it is still there
};
