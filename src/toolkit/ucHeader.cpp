#include "toolkit/ucHeader.h"

#include "drawing/Twips.h"
#include "toolkit/Slices.h"

#include <QPainter>
#include <QtMath>

namespace {

constexpr int CapWidth = 7;
constexpr double CaptionLeft = 15; // twips

} // namespace

ucHeader::ucHeader(QWidget* parent)
    : PaintedPanel(parent) {
    setFont(TheStyle().title);
    resize(sizeHint());
}

void ucHeader::SetCenterAlignText(bool center) {
    centerAlignText_ = center;
    update();
}

ucHeader::Layout ucHeader::layoutRects() const {
    return {QRect(0, 0, CapWidth, height()), QRect(CapWidth, 0, width() - 2 * CapWidth, height()),
            QRect(width() - CapWidth, 0, CapWidth, height())};
}

QSize ucHeader::sizeHint() const {
    return {qCeil(TextWidth()) + 2 * CapWidth + 2 * Twips::ToPixels(CaptionLeft),
            TheStyle().headerHeight};
}

void ucHeader::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Style& style = TheStyle();
    const Layout at = layoutRects();
    const Style::ButtonFace face{style.header, Qt::transparent, style.headerInk};
    const Slices& slices = Slices::OfFace(face, CapWidth, 0, height(), devicePixelRatioF());
    painter.drawPixmap(at.picL, slices.left);
    StretchColumn(painter, at.picM, slices.middle);
    painter.drawPixmap(at.picR, slices.right);
    painter.fillRect(0, height() - 1, width(), 1, style.headerEdge);
    const double left =
        centerAlignText_ ? (at.picM.width() - TextWidth()) / 2 : Twips::ToPixels(CaptionLeft);
    PrintCaption(painter, face.text, at.picM.left() + left);
}
