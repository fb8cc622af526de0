#pragma once

#include <QString>
#include <QVariant>

/// One entry of a search result: just enough to draw a row, no nutrient values.
struct Food {
    QString FoodName;
    bool isRecipe = false; ///< from Recipes, else from FOODS
    qint32 ID = 0;         ///< the keys of the two tables overlap: only isRecipe tells them apart
    QVariant ServA;        ///< may be null
    QVariant ServB;        ///< may be null; empty for a recipe
};
