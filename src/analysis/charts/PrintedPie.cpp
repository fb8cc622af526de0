#include "analysis/charts/PrintedPie.h"

#include "analysis/charts/Pie.h"
#include "drawing/Style.h"

#include <QPainter>

namespace {

constexpr int Edge = 150;
constexpr double Radius = 72;
constexpr int LegendTop = Edge + 6;
constexpr int LegendLeft = 30;
constexpr int LegendLine = 18;
constexpr int Swatch = 10;
constexpr int SwatchGap = 8;
constexpr double EdgeWidth = 0.75; ///< of lines around sectors and swatches

PieForm Form() {
    PieForm form;
    form.size = QSize(Edge, Edge);
    form.centre = QPointF(Edge, Edge) / 2;
    form.radius = Radius;
    form.noDataCaptions = {"Total Fat --", "Protein --", "Carbs. --"};
    form.ground = TheStyle().paper;
    return form;
}

void PaintSectors(QPainter& painter, const Pie& pie) {
    const auto sectors = pie.EnergyParts().Sectors();
    const auto colours = pie.ShownColours();
    painter.setRenderHint(QPainter::Antialiasing);
    for (size_t i = 0; i < sectors.size(); ++i) {
        painter.setBrush(colours[i]);
        painter.drawPath(pie.SectorPath(sectors[i]));
    }
}

void PaintNotice(QPainter& painter, const Pie& pie) {
    painter.drawEllipse(pie.Form().centre, Radius, Radius);
    painter.setFont(TheStyle().small);
    painter.drawText(QRect(QPoint(), pie.Form().size), Qt::AlignCenter, pie.Summary());
}

void PaintLegend(QPainter& painter, const Pie& pie) {
    const auto colours = pie.ShownColours();
    painter.setFont(TheStyle().text);
    for (int i = 0; i < int(colours.size()); ++i) {
        const QRect line(LegendLeft, LegendTop + i * LegendLine, Edge - LegendLeft, LegendLine);
        painter.setBrush(colours[size_t(i)]);
        painter.drawRect(line.left(), line.top() + (LegendLine - Swatch) / 2, Swatch, Swatch);
        painter.drawText(line.adjusted(Swatch + SwatchGap, 0, 0, 0),
                         Qt::AlignLeft | Qt::AlignVCenter, pie.Captions()[size_t(i)]);
    }
}

} // namespace

QSize PrintedPie::Size() {
    return {Edge, LegendTop + int(EnergyShares::Count) * LegendLine};
}

void PrintedPie::Paint(QPainter& painter, const EnergyShares& shares) {
    Pie pie(Form());
    pie.Show(shares);
    painter.save();
    painter.setPen(QPen(TheStyle().ink, EdgeWidth));
    if (shares.What() == EnergyShares::Content::Sectors)
        PaintSectors(painter, pie);
    else
        PaintNotice(painter, pie);
    PaintLegend(painter, pie);
    painter.restore();
}
