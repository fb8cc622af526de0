#pragma once

#include "records/fooddata/FdcAmounts.h"

#include <QString>

#include <functional>
#include <span>

class FoodFilter;
class FoodTally;
struct CustomFood;
class NutrientAmounts;

/// The foods of a FoodData Central download, each with one serving.
///
/// The file of the amounts has no order and tens of millions of rows. It is read once for each
/// block of foods, and only the block's amounts are kept.
class FdcDownload {
public:
    using Step = FdcAmounts::Step;
    using Take = std::function<void(const QString& number, const CustomFood& food)>;

    /// Whether a folder holds the files of a download.
    static bool IsIn(const QString& folder);

    FdcDownload(QString folder, const FoodFilter& filter, FoodTally& tally);
    /// Gives each food that can be used to `take`. Fails if a file is missing or is no such table.
    void Read(const Take& take, const Step& step = {});

private:
    using Block = std::span<const FdcFood>;
    void ReadBlock(Block foods, const Take& take, const Step& step);
    void Give(const FdcFood& food, const NutrientAmounts& in100, const Take& take);
    void Refuse(const FdcFood& food, const QString& reason);

    QString folder_;
    FoodTally& tally_;
    FdcFoods foods_;
    bool anyAmount_ = false;
};
