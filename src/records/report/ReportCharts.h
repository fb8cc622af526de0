#pragma once

#include <QSize>

#include <array>

class EnergyShares;
class QByteArray;
class QColor;
class QPainter;
struct WeightCurve;

/// The charts of a report, from the painter's origin. Sizes are pixels, 96 to the inch.
namespace ReportCharts {
QSize PieSize();
void PaintPie(QPainter& painter, const EnergyShares& shares);
std::array<QColor, 3> PieColours(); ///< fat, protein, carbohydrate
/// The largest of a good size that is not higher than `room`; the smallest if there is none.
QSize WeightSize(int room);
void PaintWeights(QPainter& painter, const WeightCurve& curve, QSize size);

/// As PNG, sharp enough for print.
QByteArray PiePicture(const EnergyShares& shares);
QByteArray WeightPicture(const WeightCurve& curve);
} // namespace ReportCharts
