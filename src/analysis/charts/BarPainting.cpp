#include "analysis/charts/BarPainting.h"

#include "drawing/Style.h"

#include <QImage>
#include <QPainter>

#include <map>
#include <utility>

namespace {

QImage BarPicture(const QColor (&rows)[BarPainting::Height]) {
    constexpr int pictureWidth = 7;
    QImage picture(pictureWidth, BarPainting::Height, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixelColor(x, y, rows[y]);
    return picture;
}

/// Drawn once for each style: on a dark screen, pages are still light.
const QImage& KeptPicture(bool hilited) {
    static std::map<std::pair<StyleKind, bool>, QImage> kept;
    const Style& style = TheStyle();
    QImage& picture = kept[{style.kind, hilited}];
    if (picture.isNull())
        picture = BarPicture(hilited ? style.barHover : style.barNormal);
    return picture;
}

} // namespace

void BarPainting::Paint(QPainter& painter, const QRect& place, bool hilited) {
    painter.drawImage(place, KeptPicture(hilited));
}
