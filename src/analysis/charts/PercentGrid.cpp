#include "analysis/charts/PercentGrid.h"

#include "analysis/charts/GridLines.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"

#include <QPainter>

void PercentGrid::Paint(QPainter& painter, QSize size) {
    painter.fillRect(QRect(QPoint(), size), TheStyle().paper);
    const int end = Twips::FromPixels(size.width());
    GridLines{Origin, Step, DarkStep, end}.DrawGrid(painter, size.height());
}
