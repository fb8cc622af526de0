#include "drawing/DevicePixels.h"

#include <QPainter>
#include <QtMath>

DevicePixels::DevicePixels(QPainter& painter)
    : painter_(painter)
    , toDevice_(painter.deviceTransform()) {
    const QPaintDevice& on = *painter.device();
    if (on.devType() == QInternal::Widget)
        shown_ = toDevice_.mapRect(QRect(0, 0, on.width(), on.height()));
    painter_.save();
    painter_.setWorldTransform(toDevice_.inverted(), true);
}

DevicePixels::~DevicePixels() {
    painter_.restore();
}

QRect DevicePixels::Of(const QRectF& place) const {
    const QRectF exact = toDevice_.mapRect(place);
    QPoint end(qRound(exact.right()) - 1, qRound(exact.bottom()) - 1);
    if (!shown_.isNull())
        end = {qMin(end.x(), shown_.right()), qMin(end.y(), shown_.bottom())};
    return {QPoint(qRound(exact.left()), qRound(exact.top())), end};
}

int DevicePixels::Line(double width) const {
    return qMax(1, qFloor(width * Ratio()));
}

double DevicePixels::Ratio() const {
    return toDevice_.m11();
}

void PaintArea(QPainter& painter, const QRect& place, const QColor& colour) {
    const DevicePixels device(painter);
    painter.fillRect(device.Of(place), colour);
}

void PaintFrame(QPainter& painter, const QRect& place, const QColor& colour, double radius) {
    const DevicePixels device(painter);
    const int line = device.Line();
    const double inset = line / 2.0;
    QPen pen(colour, line);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    const double rounding = radius * device.Ratio();
    painter.drawRoundedRect(QRectF(device.Of(place)).adjusted(inset, inset, -inset, -inset),
                            rounding, rounding);
}

void PaintEdge(QPainter& painter, const QRect& place, Qt::Edge edge, const QColor& colour) {
    const DevicePixels device(painter);
    const int line = device.Line();
    QRect on = device.Of(place);
    switch (edge) {
    case Qt::TopEdge:
        on.setHeight(line);
        break;
    case Qt::LeftEdge:
        on.setWidth(line);
        break;
    case Qt::BottomEdge:
        on.setTop(on.bottom() + 1 - line);
        break;
    case Qt::RightEdge:
        on.setLeft(on.right() + 1 - line);
        break;
    }
    painter.fillRect(on, colour);
}
