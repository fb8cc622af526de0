#pragma once

#include <QRect>

#include <array>

/// Where the parts of a result row stand, in pixels of the row. The columns are counted from the
/// right edge, so that they line up from row to row.
struct FoodRowLayout {
    struct Line {
        QRect lblServ, txtQTY, cmdEAT, imgInfo_W;
    };
    QRect imgFoodIcon, aaFood, lblQTY;
    std::array<Line, 2> lines; ///< servings A and B
    int height = 0;            ///< of a row with both servings

    static FoodRowLayout Of(int width);
};
