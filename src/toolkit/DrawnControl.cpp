#include "toolkit/DrawnControl.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "toolkit/ControlInterface.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

namespace {

constexpr int RingWidth = 2;

} // namespace

DrawnControl::DrawnControl(QWidget* parent)
    : SpokenControl(parent) {
    setMouseTracking(true);
}

bool DrawnControl::IsInside(QPointF place) const {
    return place.x() > 0 && place.y() > 0 && place.x() < width() && place.y() < height();
}

QAccessibleInterface* DrawnControl::MakeAccessible() {
    return new ControlInterface(this);
}

void DrawnControl::focusInEvent(QFocusEvent* event) {
    const Qt::FocusReason reason = event->reason();
    const bool comesBack = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
    if (!comesBack)
        focusFromMouse_ = reason == Qt::MouseFocusReason;
    focusShown_ = !focusFromMouse_;
    QWidget::focusInEvent(event);
    update();
}

void DrawnControl::focusOutEvent(QFocusEvent* event) {
    focusShown_ = false;
    QWidget::focusOutEvent(event);
    update();
}

void DrawnControl::RaiseMouseMove(const QMouseEvent* event) {
    const double ratio = Twips::PerPixel();
    Q_EMIT MouseMove(static_cast<int>(event->buttons()), ShiftOf(event),
                     event->position().x() * ratio, event->position().y() * ratio);
}

QPoint DrawnControl::PixelOf(const QMouseEvent* event) {
    return {qFloor(event->position().x()), qFloor(event->position().y())};
}

int DrawnControl::ShiftOf(const QMouseEvent* event) {
    const Qt::KeyboardModifiers held = event->modifiers();
    return (held.testFlag(Qt::ShiftModifier) ? 1 : 0) +
           (held.testFlag(Qt::ControlModifier) ? 2 : 0) + (held.testFlag(Qt::AltModifier) ? 4 : 0);
}

bool DrawnControl::IsPressKey(const QKeyEvent* event) {
    const bool pressKey = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                          event->key() == Qt::Key_Enter;
    return pressKey && !event->isAutoRepeat();
}

void PaintFocusRing(QPainter& painter, const QRectF& place, double radius) {
    const DevicePixels device(painter);
    const QRectF on = device.Of(place);
    const double rounding = radius * device.Ratio();
    const int outer = device.Line(RingWidth);
    const int inner = device.Line();
    const auto ring = [&](double inset, double radiusInside, const QPen& pen) {
        painter.setPen(pen);
        painter.drawRoundedRect(on.adjusted(inset, inset, -inset, -inset), radiusInside,
                                radiusInside);
    };
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    ring(outer / 2.0, rounding, QPen(TheStyle().frame, outer));
    ring(outer + inner / 2.0, qMax(0.0, rounding - device.Ratio()), QPen(TheStyle().paper, inner));
}
