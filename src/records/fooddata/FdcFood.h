#pragma once

#include <QByteArray>

#include <vector>

/// A kind of food in a FoodData Central download. The rest of its rows are samples and purchases.
struct FdcKind {
    const char* type;    ///< in food.csv
    const char* shown;   ///< the other spelling of it
    const char* asked;   ///< the type of a FoodFilter
    const char* lasting; ///< the name of the number that stays when a record is published again
    const char* file;    ///< where that number stands
    const char* column;  ///< its name there
    int digits;          ///< the number is filled up with zeros; 0: it is kept
    bool fromLabel;      ///< amounts are those of a label, and some are wrong
};

/// A food of a download, as far as it is known before its amounts. Texts are in UTF-8, because a
/// download has hundreds of thousands of foods.
struct FdcFood {
    quint32 key = 0; ///< of this publication
    int line = 0;    ///< in food.csv
    const FdcKind* kind = nullptr;
    QByteArray number = {}; ///< the lasting one, with the name of its kind; empty: it has none
    QByteArray name = {};
    QByteArray category = {};
    QByteArray serving = {}; ///< empty: 100 grams
    double amount = 100;     ///< grams or millilitres of the serving
    bool millilitres = false;
    quint32 published = 0; ///< days as yyyymmdd
    quint32 modified = 0;
    quint32 available = 0;
};
using FdcFoods = std::vector<FdcFood>; ///< in ascending order of their keys

/// The food of that key, or null.
FdcFood* FindFood(FdcFoods& foods, quint32 key);
