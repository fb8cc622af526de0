#pragma once

#include <QRectF>
#include <QSize>

class QPainter;
struct WeightCurve;

/// The picture of a weight curve: a frame, both axes with their labels, the grid, the line. The
/// labels' places are in twips.
namespace WeightCurvePainting {
inline constexpr QSize UsualSize(716, 400); ///< for which the labels' places are made

void Paint(QPainter& painter, const WeightCurve& curve, QSize size); ///< pixels, from the origin

QRect InPixels(const QRectF& twips);
QRectF WeightLabelPlace(int i);
QRectF DateLabelPlace(double left, int height); ///< on a picture of so many pixels in height
} // namespace WeightCurvePainting
