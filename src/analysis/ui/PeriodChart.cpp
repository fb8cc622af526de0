#include "analysis/ui/PeriodChart.h"

#include <QPainter>

PeriodChart::PeriodChart(QWidget* parent)
    : ChartPiece(parent) {
    setMouseTracking(true);
}

void PeriodChart::mouseMoveEvent(QMouseEvent*) {
    Q_EMIT MouseMove();
}

void PeriodChart::TrackParts() {
    for (QWidget* part : findChildren<QWidget*>())
        part->setMouseTracking(true);
}

void PeriodChart::KeepMoves(QWidget* part) {
    part->setAttribute(Qt::WA_NoMousePropagation);
}

void PeriodChart::PaintChart(QPainter& painter, const QRect& place) {
    const QSizeF shown = QSizeF(size()).scaled(place.size(), Qt::KeepAspectRatio);
    const double scale = shown.width() / width();
    painter.save();
    painter.translate(QRectF(place).center() - QPointF(shown.width(), shown.height()) / 2);
    painter.scale(scale, scale);
    render(&painter, QPoint(), QRegion(), DrawChildren);
    painter.restore();
}
