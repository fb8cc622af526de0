#include "toolkit/ucStrip.h"

#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "toolkit/ucHeader.h"

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
    ucHeader::PaintBand(painter, rect());
    PrintCaption(painter, TheStyle().headerInk, SurfaceLeft + Twips::ToPixels(CaptionLeft));
}
