#include "toolkit/ucHeader.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "toolkit/Face.h"

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

void ucHeader::PaintBand(QPainter& painter, const QRect& place) {
    const Style& style = TheStyle();
    ::PaintGround(painter, place, style.header);
    PaintEdge(painter, place, Qt::BottomEdge, style.headerEdge);
}

void ucHeader::PaintBehind(QPainter& painter, const QRect& header) {
    PaintBand(painter, header.adjusted(-1, -1, 1, 0));
}

void ucHeader::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Layout at = layoutRects();
    PaintBand(painter, rect());
    const double left =
        centerAlignText_ ? (at.picM.width() - TextWidth()) / 2 : Twips::ToPixels(CaptionLeft);
    PrintCaption(painter, TheStyle().headerInk, at.picM.left() + left);
}
