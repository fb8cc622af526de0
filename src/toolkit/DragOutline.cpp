#include "toolkit/DragOutline.h"

#include "toolkit/Style.h"

#include <QPainter>

static constexpr int lineWidth = 2;

DragOutline::DragOutline()
    : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::WindowTransparentForInput) {
    setAttribute(Qt::WA_ShowWithoutActivating);
}

/// Cut out of its window, because a see-through one needs a compositor.
void DragOutline::Draw(const QRect& outline) {
    setGeometry(outline);
    setMask(QRegion(rect()) -
            QRegion(rect().adjusted(lineWidth, lineWidth, -lineWidth, -lineWidth)));
    show();
}

void DragOutline::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), TheStyle().window.to);
}
