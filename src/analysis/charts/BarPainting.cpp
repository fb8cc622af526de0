#include "analysis/charts/BarPainting.h"

#include "drawing/Style.h"

#include <QPainter>

namespace {

QImage BarPicture(const QColor (&rows)[BarPainting::Height]) {
    constexpr int pictureWidth = 7;
    QImage picture(pictureWidth, BarPainting::Height, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixelColor(x, y, rows[y]);
    return picture;
}

} // namespace

void BarPainting::Paint(QPainter& painter, const QRect& place, bool hilited) {
    static const QImage picBarGraph_Bars_N = BarPicture(TheStyle().barNormal);
    static const QImage picBarGraph_Bars_R = BarPicture(TheStyle().barHover);
    painter.drawImage(place, hilited ? picBarGraph_Bars_R : picBarGraph_Bars_N);
}
