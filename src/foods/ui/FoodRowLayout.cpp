#include "foods/ui/FoodRowLayout.h"

#include "drawing/Style.h"

namespace {
constexpr int Edge = 8;
constexpr int IconSize = 20;
constexpr int TextLeft = Edge + IconSize + 8;
constexpr int NameTop = 4;
constexpr int NameHeight = 20;
constexpr int LineGap = 4;
constexpr int ButtonSize = 24;
constexpr int QuantityWidth = 56;
constexpr int CaptionWidth = 28;

FoodRowLayout::Line LineAt(int top, int width) {
    const int height = TheStyle().fieldHeight;
    const int group = TheStyle().groupGap;
    FoodRowLayout::Line line;
    line.imgInfo_W = QRect(width - Edge - ButtonSize, top, ButtonSize, height);
    line.cmdEAT = line.imgInfo_W.translated(-ButtonSize - group, 0);
    line.txtQTY = QRect(line.cmdEAT.left() - group - QuantityWidth, top, QuantityWidth, height);
    line.lblServ =
        QRect(TextLeft, top, line.txtQTY.left() - CaptionWidth - Edge - TextLeft, height);
    return line;
}
} // namespace

FoodRowLayout FoodRowLayout::Of(int width) {
    FoodRowLayout layout;
    const int step = TheStyle().fieldHeight + LineGap;
    layout.lines[0] = LineAt(NameTop + NameHeight, width);
    layout.lines[1] = LineAt(NameTop + NameHeight + step, width);
    layout.imgFoodIcon = QRect(Edge, NameTop, IconSize, NameHeight);
    layout.aaFood = QRect(TextLeft, NameTop, width - Edge - TextLeft, NameHeight);
    const QRect quantity = layout.lines[0].txtQTY;
    layout.lblQTY =
        QRect(quantity.left() - CaptionWidth, quantity.top(), CaptionWidth, quantity.height());
    layout.height = layout.lines[1].txtQTY.top() + step + LineGap;
    return layout;
}
