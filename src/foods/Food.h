#pragma once

#include <QString>
#include <QVariant>

/// One entry of a search result. It holds what a row shows, but no amounts.
struct Food {
    QString FoodName;
    bool isRecipe = false; ///< from Recipes, else from FOODS
    qint32 ID = 0;         ///< both tables use the same numbers: only isRecipe tells them apart
    QVariant ServA;        ///< may be null
    QVariant ServB;        ///< may be null; empty for a recipe
};
