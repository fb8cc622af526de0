#include "toolkit/DragOutline.h"

#include "drawing/Style.h"

#include <QPainter>

static constexpr int LineWidth = 2;

DragOutline::DragOutline()
    : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::WindowTransparentForInput) {
    setAttribute(Qt::WA_ShowWithoutActivating);
}

/// Uses a window mask, because a transparent window needs a compositor.
void DragOutline::Draw(const QRect& outline) {
    setGeometry(outline);
    setMask(QRegion(rect()) -
            QRegion(rect().adjusted(LineWidth, LineWidth, -LineWidth, -LineWidth)));
    show();
}

void DragOutline::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), TheStyle().window.to);
}
