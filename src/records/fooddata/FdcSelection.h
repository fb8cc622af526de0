#pragma once

#include "records/fooddata/FdcFood.h"

#include <QHash>
#include <QString>

class FoodFilter;
class FoodTally;

/// Chooses the foods of a FoodData Central download: the kinds that are foods, of each the latest
/// publication, and of these what the filter takes.
class FdcSelection {
public:
    FdcSelection(QString folder, const FoodFilter& filter, FoodTally& tally);

    FdcFoods Choose(); ///< with their names, numbers and servings

private:
    void ReadFoods();
    void RefuseDoubles();
    void ReadCategories();
    void ReadNumbers(const FdcKind& kind);
    void ReadBranded();
    void LeaveSuperseded();
    void LeaveUnwanted();
    void Mark(FdcFood& food) { food.kind = nullptr; } ///< for RemoveMarked
    int RemoveMarked();                               ///< gives their number
    void LeaveMarked(const QString& why);
    bool HasKind(const FdcKind& kind) const;
    QByteArray Shared(const QByteArray& text); ///< the same bytes for equal texts

    QString folder_;
    const FoodFilter& filter_;
    FoodTally& tally_;
    FdcFoods foods_;
    QHash<QByteArray, QByteArray> shared_;
};
