#include "analysis/AxisLabel.h"

#include "toolkit/SmoothedPrint.h"
#include "toolkit/Style.h"
#include "toolkit/Twips.h"

#include <QPainter>

AxisLabel::AxisLabel(const QRectF& place, Qt::Alignment alignment, QWidget* parent)
    : ChartPiece(parent)
    , place_(place)
    , alignment_(alignment) {
    setMouseTracking(true);
    Place();
}

void AxisLabel::SetLeft(double left) {
    place_.moveLeft(left);
    Place();
}

void AxisLabel::SetTop(double top) {
    place_.moveTop(top);
    Place();
}

void AxisLabel::Place() {
    setGeometry(Twips::ToPixels(place_.left()), Twips::ToPixels(place_.top()),
                Twips::ToPixels(place_.width()), Twips::ToPixels(place_.height()));
}

void AxisLabel::Print(QPainter& painter) const {
    const Style& style = TheStyle();
    painter.fillRect(geometry(), style.paper);
    painter.setFont(SmoothedFont(style.small));
    painter.setPen(style.ink);
    painter.drawText(geometry(), int(alignment_ | Qt::AlignVCenter | Qt::TextDontClip),
                     FittingText(caption_, style.small, width()));
}
