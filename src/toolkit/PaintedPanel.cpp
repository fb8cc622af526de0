#include "toolkit/PaintedPanel.h"

#include "drawing/SmoothedPrint.h"
#include "toolkit/Accessible.h"
#include "toolkit/Face.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>

PaintedPanel::PaintedPanel(QWidget* parent)
    : DrawnControl(parent) {}

void PaintedPanel::SetCaption(const QString& caption) {
    caption_ = caption;
    update();
    TellNameChanged(this);
}

double PaintedPanel::TextWidth() const {
    return QFontMetricsF(SmoothedFont(font())).horizontalAdvance(caption_);
}

double PaintedPanel::TextHeight() const {
    return QFontMetricsF(SmoothedFont(font())).height();
}

void PaintedPanel::PaintGround(QPainter& painter, const QColor& from, const QColor& to) const {
    ::PaintGround(painter, rect(), {from, to});
}

void PaintedPanel::PrintCaption(QPainter& painter, const QColor& ink, double x) const {
    PrintCaption(painter, ink, QPointF(x, height() / 2.0 - TextHeight() / 2));
}

void PaintedPanel::PrintCaption(QPainter& painter, const QColor& ink, QPointF place) const {
    painter.setPen(ink);
    SmoothedPrint(painter, place, caption_, font());
}

void PaintedPanel::mousePressEvent(QMouseEvent* event) {
    BeginClick(event);
}

/// Passes the move on to the screen below.
void PaintedPanel::mouseMoveEvent(QMouseEvent* event) {
    RaiseMouseMove(event);
    event->ignore();
}

void PaintedPanel::mouseReleaseEvent(QMouseEvent* event) {
    if (EndsClick(event))
        Q_EMIT Click();
}
