#include "toolkit/DrawnControl.h"

#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "toolkit/ControlInterface.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

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
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(TheStyle().frame, 2));
    painter.drawRoundedRect(place.adjusted(1, 1, -1, -1), radius, radius);
    painter.setPen(QPen(TheStyle().paper, 1));
    painter.drawRoundedRect(place.adjusted(2.5, 2.5, -2.5, -2.5), radius - 1, radius - 1);
    painter.restore();
}
