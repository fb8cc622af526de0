#include "analysis/charts/DayPicture.h"

#include "analysis/DayFigures.h"
#include "analysis/charts/FigureRows.h"
#include "analysis/charts/Leader.h"
#include "analysis/charts/PercentGrid.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"

#include <QFontMetrics>
#include <QPainter>

namespace {

const QString Points = QStringLiteral(".......................");
const QString EmptyValue = QStringLiteral("..............................0");

// Pixels.
constexpr int NameLeft = 7;
constexpr int FirstTop = 2;
constexpr int RowsMargin = 2; ///< below the last row
constexpr int Frame = 2;      ///< of the panel, on both sides together

constexpr int RightMargin = 30; ///< twips
constexpr int PercentsADarkLine = 50;

} // namespace

DayPicture::DayPicture(int panelWidth)
    : panelWidth_(panelWidth) {}

QSize DayPicture::Size() const {
    return {panelWidth_ - Frame, Top(int(ChartOrder().size()) + 1) + RowsMargin};
}

int DayPicture::Top(int row) {
    return FirstTop + (row - 1) * RowHeight;
}

QRect DayPicture::NamePlace(int row) {
    return {NameLeft, Top(row), NamesWidth - NameLeft,
            RowHeight + Twips::ToPixels(FigureRows::ValueDrop)};
}

QPoint DayPicture::BarPlace(int row) {
    return {Twips::ToPixels(PercentGrid::Origin), Top(row) + Twips::ToPixels(FigureRows::BarDrop)};
}

QPoint DayPicture::ValuePlace(int row) {
    return {0, Top(row) + Twips::ToPixels(FigureRows::ValueDrop)};
}

QRect DayPicture::View() const {
    return {NamesWidth, 0, Size().width() - NamesWidth, Size().height()};
}

void DayPicture::PaintNames(QPainter& painter, const DayFigures& figures) const {
    painter.fillRect(QRect(QPoint(), Size()), TheStyle().paper);
    FigureRows::PaintTexts(painter, figures.Rows(), &NamePlace, &NutrientFigure::Caption);
}

void DayPicture::PaintBars(QPainter& painter, const DayFigures& figures) const {
    PaintNames(painter, figures);
    painter.save();
    painter.setClipRect(View(), Qt::IntersectClip);
    painter.translate(View().topLeft());
    PercentGrid::Paint(painter, View().size());
    FigureRows::PaintBars(painter, figures.Rows(), &BarPlace, [this](const NutrientFigure& figure) {
        return BarWidth(figure.value, figure.target);
    });
    painter.restore();
}

void DayPicture::PaintScale(QPainter& painter) const {
    painter.setFont(TheStyle().small);
    painter.setPen(TheStyle().barRowText);
    const int step = Twips::ToPixels(PercentGrid::DarkStep);
    int line = View().left() + Twips::ToPixels(PercentGrid::Origin);
    for (int percent = 0; line < View().right(); percent += PercentsADarkLine, line += step)
        painter.drawText(QRect(line - step / 2, -ScaleHeight, step, ScaleHeight), Qt::AlignCenter,
                         QString::number(percent) + u'%');
}

void DayPicture::PaintValues(QPainter& painter, const DayFigures& figures) const {
    PaintNames(painter, figures);
    const QSize size(View().width(), QFontMetrics(TheStyle().small).height());
    const auto place = [this, size](int row) {
        return QRect(View().topLeft() + ValuePlace(row), size);
    };
    const auto text = [&figures, size](const NutrientFigure& figure) {
        return Leader::Fitting(ValueText(figure, figures.HasData()), TheStyle().small,
                               size.width());
    };
    FigureRows::PaintTexts(painter, figures.Rows(), place, text);
}

double DayPicture::BarWidth(double value, double rdi) const {
    const double width = Twips::PerPixel() * 100 * NutrientFigure::PartOfTarget(value, rdi);
    const int end = Twips::FromPixels(panelWidth_) - RightMargin;
    if (static_cast<float>(end) < static_cast<float>(width + PercentGrid::Origin))
        return qMax(0, end - PercentGrid::Origin);
    return qMax(0.0, width);
}

QString DayPicture::ValueText(const NutrientFigure& figure, bool hasData) {
    return hasData ? Points + DayFigures::Text(figure) : EmptyValue;
}
