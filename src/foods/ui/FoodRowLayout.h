#pragma once

#include <QRect>

#include <array>

/// The places of the parts of a result row, in pixels. The columns are measured from the right
/// edge, so that they are aligned in all rows.
struct FoodRowLayout {
    struct Line {
        QRect lblServ, txtQTY, cmdEAT, imgInfo_W;
    };
    QRect imgFoodIcon, aaFood, lblQTY;
    std::array<Line, 2> lines; ///< servings A and B
    int height = 0;            ///< of a row with both servings

    static FoodRowLayout Of(int width);
};
