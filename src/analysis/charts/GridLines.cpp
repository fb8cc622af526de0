#include "analysis/charts/GridLines.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"

#include <QPainter>

void GridLines::DrawGrid(QPainter& painter, int height) const {
    const Style& style = TheStyle();
    const int bottom = Twips::ToPixels(Twips::FromPixels(height) - Foot);
    for (int n = 0; origin + n <= end; n += step) {
        const QColor& colour = n % darkStep == 0 ? style.gridDark : style.gridLight;
        PaintEdge(painter, QRect(Twips::ToPixels(origin + n), 0, 1, bottom), Qt::LeftEdge, colour);
    }
}
