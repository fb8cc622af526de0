#include "toolkit/ucTitleBar.h"

#include "drawing/Style.h"

#include <QtMath>

namespace {

constexpr int LogoRoom = 30;

} // namespace

ucTitleBar::ucTitleBar(QWidget* parent)
    : TitleControl(parent)
    , surfaceLeft_(TheStyle().nestEdge + LogoRoom) {
    resize(sizeHint());
}

void ucTitleBar::SetSurfaceLeft(int pixels) {
    surfaceLeft_ = pixels;
    update();
}

QSize ucTitleBar::sizeHint() const {
    return {surfaceLeft_ + qCeil(TextWidth()) + TheStyle().nestEdge, TheStyle().titleHeight};
}

void ucTitleBar::paintEvent(QPaintEvent*) {
    PaintTitle(QPoint(surfaceLeft_, 0), QPointF(0, height() / 2.0 - TextHeight() / 2));
}
