#pragma once

#include <QString>

/// A unit of recipes and servings. Units of one sort can be converted into each other.
struct KitchenUnit {
    enum class Sort { Mass, Volume, Piece };
    Sort sort;
    double size;       ///< in grams or millilitres; 1 for a piece
    const char* names; ///< in lower case, with a blank before and after each

    /// The unit at the start of the text, and then `length` is that of its name; or null.
    static const KitchenUnit* Leading(const QString& text, qsizetype& length);
};
