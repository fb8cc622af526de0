#include "analysis/charts/ChartText.h"

#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"

#include <QPainter>

void PaintChartText(QPainter& painter, const QRect& place, const QString& text,
                    Qt::Alignment alignment) {
    painter.save();
    painter.setClipRect(place, Qt::IntersectClip);
    painter.setFont(FittingFont(TheStyle().small, text, place.width()));
    painter.setPen(TheStyle().barRowText);
    painter.drawText(place, int(alignment), text);
    painter.restore();
}
