#include "analysis/charts/WeightCurvePainting.h"

#include "analysis/WeightAxis.h"
#include "analysis/WeightCurve.h"
#include "analysis/charts/ChartText.h"
#include "analysis/charts/TwipsSurface.h"
#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "runtime/Dates.h"

#include <QPainter>

namespace {

// Twips.
constexpr int AxisTop = 150;
constexpr int Margin = 30; ///< between the lines and the right and lower edge
constexpr int WeightLabelLeft = 105;
constexpr int WeightLabelWidth = 780;
constexpr int GridLeft = DateAxis::Left + 15;
constexpr int DateLabelHeight = 240;
constexpr int DateLabelFoot = 390; ///< from a date label's upper edge to the lower edge
constexpr QPointF NoticePlace(3900, 2000);
constexpr QPoint HighlightShift(15, -15);

// Pixels.
constexpr int TextMargin = 2;  ///< beside a date, free of lines
constexpr int PointGrowth = 4; ///< a point is so much wider than its line
constexpr int DotEdgeWidth = 3;
constexpr int DotCoreWidth = 2;
constexpr int MeanWidth = 3;

// Pens.
constexpr int FirstPass = 3;
constexpr int LastPass = 4;

void DrawAxes(TwipsSurface& surface, const WeightCurve& curve, QSize size) {
    const Style& style = TheStyle();
    const int right = Twips::FromPixels(size.width()) - Margin;
    const int bottom = Twips::FromPixels(size.height()) - Margin;
    surface.VerticalLine(DateAxis::Left, AxisTop, bottom, style.lineAxis);
    for (int i = 0; i < WeightAxis::LabelCount; ++i)
        surface.HorizontalLine(WeightAxis::LabelMiddle(i), GridLeft, right, style.gridLight);
    for (const DateAxis::Label& date : curve.dates)
        surface.VerticalLine(date.left + DateAxis::LabelWidth / 2.0, AxisTop, bottom,
                             style.gridDark);
}

/// The lighter pen of the last pass lies as a highlight up and to the right of the darker one. The
/// next segment paints the dots of the far end; the last segment ends where it begins.
void PlotSegment(TwipsSurface& surface, QPoint from, QPoint to, int pass) {
    const Style& style = TheStyle();
    const Style::LinePen& ln = style.ln[pass];
    const QPoint shift = pass == LastPass ? HighlightShift : QPoint();
    surface.ThickLine(from + shift, to + shift, ln.colour, ln.width);
    surface.ThickPoint(from + shift, ln.colour, ln.width + PointGrowth);
    if (pass != LastPass)
        return;
    surface.ThickPoint(from + shift, style.lineDotEdge, DotEdgeWidth);
    surface.ThickPoint(from + shift, style.lineDotCore, DotCoreWidth);
}

void PaintLine(TwipsSurface& surface, const std::vector<PlotPoint>& points) {
    for (int pass = FirstPass; pass <= LastPass; ++pass)
        for (size_t i = 0; i < points.size(); ++i) {
            const PlotPoint& from = points[i];
            const PlotPoint& to = points[qMin(i + 1, points.size() - 1)];
            PlotSegment(surface, {from.x, from.y}, {to.x, to.y}, pass);
        }
}

void PaintMean(TwipsSurface& surface, const std::vector<PlotPoint>& mean) {
    for (size_t i = 1; i < mean.size(); ++i)
        surface.ThickLine(QPoint(mean[i - 1].x, mean[i - 1].y), QPoint(mean[i].x, mean[i].y),
                          TheStyle().lineMean, MeanWidth);
}

/// Lines do not cross the text of a date.
void PaintDate(QPainter& painter, const QRect& place, const QString& text) {
    const int advance = QFontMetrics(TheStyle().small).horizontalAdvance(text);
    const int reach = qMin(advance / 2 + TextMargin, place.width() / 2);
    painter.fillRect(place.left() + place.width() / 2 - reach, place.top(), 2 * reach,
                     place.height(), TheStyle().paper);
    PaintChartText(painter, place, text, Qt::AlignCenter);
}

void PaintLabels(QPainter& painter, const WeightCurve& curve, int height) {
    using namespace WeightCurvePainting;
    for (int i = 0; i < int(curve.weights.size()); ++i)
        PaintChartText(painter, InPixels(WeightLabelPlace(i)),
                       QString::number(curve.weights[size_t(i)]),
                       Qt::AlignRight | Qt::AlignVCenter);
    for (const DateAxis::Label& date : curve.dates)
        PaintDate(painter, InPixels(DateLabelPlace(date.left, height)), Dates::ShortText(date.day));
}

} // namespace

QRect WeightCurvePainting::InPixels(const QRectF& twips) {
    return {Twips::ToPixels(twips.left()), Twips::ToPixels(twips.top()),
            Twips::ToPixels(twips.width()), Twips::ToPixels(twips.height())};
}

QRectF WeightCurvePainting::WeightLabelPlace(int i) {
    return QRectF(WeightLabelLeft, WeightAxis::LabelTops[size_t(i)], WeightLabelWidth,
                  WeightAxis::LabelHeight);
}

QRectF WeightCurvePainting::DateLabelPlace(double left, int height) {
    return QRectF(left, Twips::FromPixels(height) - DateLabelFoot, DateAxis::LabelWidth,
                  DateLabelHeight);
}

void WeightCurvePainting::Paint(QPainter& painter, const WeightCurve& curve, QSize size) {
    const QRect place(QPoint(), size);
    const Style& style = TheStyle();
    PaintArea(painter, place, style.paper);
    PaintFrame(painter, place, style.frame);
    painter.save();
    TwipsSurface surface(painter);
    DrawAxes(surface, curve, size);
    if (curve.noData)
        surface.Print(NoticePlace, QLatin1String(WeightCurve::Notice), style.chartNotice,
                      style.chartNoticeInk);
    PaintLine(surface, curve.points);
    PaintMean(surface, curve.mean);
    painter.restore();
    PaintLabels(painter, curve, size.height());
}
