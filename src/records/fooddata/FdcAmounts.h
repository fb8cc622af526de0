#pragma once

#include "records/fooddata/FdcFood.h"
#include "records/fooddata/FdcNutrients.h"

#include <QString>

#include <functional>
#include <span>

class FdcTable;
class FoodTally;

/// The figures of a block of foods, read from food_nutrient.csv.
class FdcAmounts {
public:
    using Step = std::function<void(qint64 done, qint64 total)>; ///< bytes of the file

    FdcAmounts(const QString& folder, std::span<const FdcFood> foods, FoodTally& tally,
               const Step& step);

    FdcNutrients::Figures Of(size_t food) const; ///< by the place in the block

private:
    void Read(FdcTable& table, FoodTally& tally);
    double* Place(quint32 key); ///< the figures of the food of that key, or null

    std::span<const FdcFood> foods_;
    std::vector<double> figures_;
    size_t last_ = 0; ///< rows of one food mostly stand together
};
