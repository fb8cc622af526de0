#pragma once

#include "store/Recordset.h"

#include <QHash>

class FoodTally;
struct CustomFood;

/// Keeps foods of a file as a person's own, in the foods that are open. Each is kept with the
/// number that its source gave it, so that a later file updates the food and does not double it.
class ImportedFoods {
public:
    enum class Mode { Write, CountOnly };

    ImportedFoods(Mode mode, FoodTally& tally);
    void Take(const QString& number, const CustomFood& food);

private:
    void ReadNumbers();
    void Append(const QString& number, const CustomFood& food);
    void Change(qint32 key, const CustomFood& food);

    Mode mode_;
    FoodTally& tally_;
    QHash<QByteArray, qint32> keys_; ///< of the foods that have a number
    qint32 highest_;
    Recordset appending_;
    int appended_ = 0; ///< since `appending_` was opened: it keeps what was appended
};
