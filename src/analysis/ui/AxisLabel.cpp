#include "analysis/ui/AxisLabel.h"

#include "toolkit/Style.h"
#include "toolkit/Twips.h"

#include <QPainter>

namespace {

constexpr int TextMargin = 2; ///< pixels on both sides that lines keep away

} // namespace

AxisLabel::AxisLabel(const QRectF& place, Qt::Alignment alignment, QWidget* parent)
    : ChartLabel(parent)
    , place_(place) {
    SetAlignment(alignment | Qt::AlignVCenter);
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

void AxisLabel::paintEvent(QPaintEvent* event) {
    const int reach = qMin(sizeHint().width() / 2 + TextMargin, width() / 2);
    if (Alignment().testFlag(Qt::AlignHCenter))
        QPainter(this).fillRect(width() / 2 - reach, 0, 2 * reach, height(), TheStyle().paper);
    ChartLabel::paintEvent(event);
}
