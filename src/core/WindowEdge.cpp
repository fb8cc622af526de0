#include "core/WindowEdge.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"

#include <QPainter>

WindowEdge::WindowEdge(QWidget* frame)
    : QWidget(frame) {
    setObjectName(QStringLiteral("windowEdge"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(frame->rect());
    setVisible(TheStyle().framesWindow);
}

void WindowEdge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PaintFrame(painter, rect(), TheStyle().frame);
}
