#include "toolkit/ucStrip.h"

#include "drawing/Style.h"
#include "drawing/Twips.h"

#include <QPainter>
#include <QtMath>

namespace {

constexpr int SurfaceLeft = 4;
constexpr double CaptionLeft = 15; // twips

} // namespace

ucStrip::ucStrip(QWidget* parent)
    : PaintedPanel(parent) {
    setFont(TheStyle().title);
    resize(sizeHint());
}

QSize ucStrip::sizeHint() const {
    return {qCeil(TextWidth()) + 2 * (SurfaceLeft + Twips::ToPixels(CaptionLeft)),
            TheStyle().headerHeight};
}

void ucStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Style& style = TheStyle();
    PaintGround(painter, style.header.from, style.header.to);
    painter.fillRect(0, height() - 1, width(), 1, style.headerEdge);
    PrintCaption(painter, style.headerInk, SurfaceLeft + Twips::ToPixels(CaptionLeft));
}
