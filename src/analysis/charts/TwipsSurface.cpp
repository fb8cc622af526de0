#include "analysis/charts/TwipsSurface.h"

#include "drawing/DevicePixels.h"
#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {

constexpr QPointF PixelMiddle(.5, .5);
constexpr int TextMargin = 4; ///< pixels

QRect Spanning(QPointF from, QPointF to) {
    const QPoint corner(Twips::ToPixels(from.x()), Twips::ToPixels(from.y()));
    const QPoint end(Twips::ToPixels(to.x()), Twips::ToPixels(to.y()));
    return {corner, QSize(qMax(1, end.x() - corner.x()), qMax(1, end.y() - corner.y()))};
}

} // namespace

TwipsSurface::TwipsSurface(QPainter& painter)
    : painter_(painter)
    , ratio_(Twips::PerPixel()) {
    painter_.setRenderHint(QPainter::Antialiasing);
}

QPointF TwipsSurface::Pixel(QPointF twips) const {
    return twips / ratio_ + PixelMiddle;
}

void TwipsSurface::VerticalLine(double x, double top, double bottom, const QColor& colour) {
    PaintEdge(painter_, Spanning({x, top}, {x, bottom}), Qt::LeftEdge, colour);
}

void TwipsSurface::HorizontalLine(double y, double left, double right, const QColor& colour) {
    PaintEdge(painter_, Spanning({left, y}, {right, y}), Qt::TopEdge, colour);
}

void TwipsSurface::ThickLine(QPointF from, QPointF to, const QColor& colour, int width) {
    if (from == to)
        return;
    painter_.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
    painter_.drawLine(Pixel(from), Pixel(to));
}

void TwipsSurface::ThickPoint(QPointF at, const QColor& colour, int width) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(colour);
    painter_.drawEllipse(Pixel(at), width / 2.0, width / 2.0);
}

void TwipsSurface::Print(QPointF place, const QString& text, const QFont& font,
                         const QColor& colour) {
    const QRectF ground(place / ratio_, QFontMetricsF(SmoothedFont(font)).size(0, text));
    painter_.fillRect(ground.adjusted(-TextMargin, 0, TextMargin, 0), TheStyle().paper);
    painter_.setPen(colour);
    SmoothedPrint(painter_, ground.topLeft(), text, font);
}
