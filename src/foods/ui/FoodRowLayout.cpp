#include "foods/ui/FoodRowLayout.h"

#include "toolkit/Style.h"

namespace {
constexpr int edge = 8;
constexpr int iconSize = 20;
constexpr int textLeft = edge + iconSize + 8;
constexpr int nameTop = 4;
constexpr int nameHeight = 20;
constexpr int lineGap = 4;
constexpr int buttonSize = 24;
constexpr int quantityWidth = 56;
constexpr int captionWidth = 28;

FoodRowLayout::Line LineAt(int top, int width) {
    const int height = TheStyle().fieldHeight;
    const int group = TheStyle().groupGap;
    FoodRowLayout::Line line;
    line.imgInfo_W = QRect(width - edge - buttonSize, top, buttonSize, height);
    line.cmdEAT = line.imgInfo_W.translated(-buttonSize - group, 0);
    line.txtQTY = QRect(line.cmdEAT.left() - group - quantityWidth, top, quantityWidth, height);
    line.lblServ =
        QRect(textLeft, top, line.txtQTY.left() - captionWidth - edge - textLeft, height);
    return line;
}
} // namespace

FoodRowLayout FoodRowLayout::Of(int width) {
    FoodRowLayout layout;
    const int step = TheStyle().fieldHeight + lineGap;
    layout.lines[0] = LineAt(nameTop + nameHeight, width);
    layout.lines[1] = LineAt(nameTop + nameHeight + step, width);
    layout.imgFoodIcon = QRect(edge, nameTop, iconSize, nameHeight);
    layout.aaFood = QRect(textLeft, nameTop, width - edge - textLeft, nameHeight);
    const QRect quantity = layout.lines[0].txtQTY;
    layout.lblQTY =
        QRect(quantity.left() - captionWidth, quantity.top(), captionWidth, quantity.height());
    layout.height = layout.lines[1].txtQTY.top() + step + lineGap;
    return layout;
}
