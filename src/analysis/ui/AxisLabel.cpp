#include "analysis/ui/AxisLabel.h"

#include "analysis/charts/WeightCurvePainting.h"

AxisLabel::AxisLabel(const QRectF& place, QWidget* parent)
    : ChartPiece(parent) {
    SetPlace(place);
}

void AxisLabel::SetPlace(const QRectF& place) {
    place_ = place;
    setGeometry(WeightCurvePainting::InPixels(place));
}
