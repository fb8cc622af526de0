#include "toolkit/Input.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

static void SendMouse(QWidget* control, QEvent::Type type, QPointF at, Qt::MouseButton button,
                      Qt::MouseButtons held) {
    QMouseEvent event(type, at, control->mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(control, &event);
}

void SendMove(QWidget* control, QPointF at, Qt::MouseButtons held) {
    SendMouse(control, QEvent::MouseMove, at, Qt::NoButton, held);
}

void SendPress(QWidget* control, QPointF at, Qt::MouseButton button) {
    SendMouse(control, QEvent::MouseButtonPress, at, button, button);
}

void SendRelease(QWidget* control, QPointF at, Qt::MouseButton button) {
    SendMouse(control, QEvent::MouseButtonRelease, at, button, Qt::NoButton);
}

void SendLeave(QWidget* control) {
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(control, &leave);
}

void SendWheel(QWidget* control, int angle) {
    const QPointF at = control->rect().center();
    QWheelEvent wheel(at, control->mapToGlobal(at), QPoint(), QPoint(0, angle), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(control, &wheel);
}

EventCount::EventCount(QObject* watched, QEvent::Type type)
    : type_(type) {
    watched->installEventFilter(this);
}

bool EventCount::eventFilter(QObject*, QEvent* event) {
    if (event->type() == type_)
        ++count_;
    return false;
}
