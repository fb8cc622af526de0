#include "analysis/ui/ChartBar.h"

#include "toolkit/Style.h"
#include "toolkit/Twips.h"

#include <QPainter>

namespace {

QImage BarPicture(const QColor (&rows)[ChartBar::Height]) {
    constexpr int pictureWidth = 7;
    QImage picture(pictureWidth, ChartBar::Height, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixelColor(x, y, rows[y]);
    return picture;
}

} // namespace

ChartBar::ChartBar(QWidget* parent)
    : ChartPiece(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(0, Height);
}

void ChartBar::SetWidth(double twips) {
    if (width_ == twips)
        return;
    width_ = twips;
    resize(Twips::ToPixels(twips), Height);
}

void ChartBar::SetHilited(bool hilited) {
    if (hilited_ == hilited)
        return;
    hilited_ = hilited;
    update();
}

void ChartBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Paint(painter, rect(), hilited_);
}

void ChartBar::Paint(QPainter& painter, const QRect& place, bool hilited) {
    static const QImage normal = BarPicture(TheStyle().barNormal);
    static const QImage hover = BarPicture(TheStyle().barHover);
    painter.drawImage(place, hilited ? hover : normal);
}
