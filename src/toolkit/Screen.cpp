#include "toolkit/Screen.h"

#include "toolkit/CleanUp.h"
#include "toolkit/Style.h"

#include <QMouseEvent>
#include <QPainter>

Screen::Screen(const QString& name, const QString& title, QWidget* parent)
    : QWidget(parent)
    , title_(title) {
    setObjectName(name);
    setWindowTitle(title);
    setAccessibleName(title);
    setMouseTracking(true);
    AddCleanUp(this, [this] { AllOff(QString()); });
}

void Screen::mouseMoveEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    if (place == lastMouse_)
        return;
    lastMouse_ = place;
    AllOff(QString());
}

void Screen::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), TheStyle().canvas);
}
