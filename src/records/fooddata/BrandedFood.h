#pragma once

#include "records/fooddata/FdcFood.h"
#include "records/fooddata/FdcTable.h"

class FoodTally;

/// Reads branded_food.csv: brand, serving and dates of each branded food.
class BrandedTable {
public:
    explicit BrandedTable(const QString& folder);

    bool Next() { return table_.Next(); }
    quint32 Key() const;
    QByteArrayView Number() const;
    bool IsDiscontinued() const;
    const QString& Name() const { return table_.Name(); }
    int Line() const { return table_.Line(); }

    /// Fills in the food. Gives the reason why it cannot be used, empty if it can.
    QString ReadInto(FdcFood& food, FoodTally& tally) const;

private:
    QString Brand() const;
    void ReadServing(FdcFood& food, FoodTally& tally) const;

    FdcTable table_;
};
