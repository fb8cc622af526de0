#include "analysis/charts/PeriodPicture.h"

#include "analysis/PeriodFigures.h"
#include "analysis/charts/FigureRows.h"
#include "analysis/charts/GridLines.h"
#include "analysis/charts/Leader.h"
#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"

#include <QFontMetrics>
#include <QPainter>

namespace {

const QString Points(148, u'.');

// Twips.
constexpr GridLines Grid{2430, 300, 1500, 11000};
constexpr int BarLeft = 2445;
constexpr int FirstTop = 60;
constexpr int Overlap = 45; ///< of two neighbouring labels
constexpr int ValueWidth = 7815;

// Pixels.
constexpr int PixelsAtTarget = 400;
constexpr int MostPixels = 534;
constexpr int LabelLeft = 8;
constexpr int HeaderDrop = 1; ///< so far the header covers the first label
constexpr int LeastPitch = 13;
constexpr int ScaleWidth = 60; ///< of a percent

constexpr int ScaleStep = 25; ///< percent

/// In twips: the greatest number of whole pixels with which all rows fit.
int LabelHeight(int chartHeight) {
    const int rows = Twips::FromPixels(chartHeight) - FirstTop - Overlap - GridLines::Foot;
    const int pitch = rows / ((NutrientCount + 1) * Twips::PerPixel());
    return Twips::FromPixels(qMax(LeastPitch, pitch)) + Overlap;
}

int TextHeight() {
    return QFontMetrics(TheStyle().small).height();
}

} // namespace

PeriodPicture::PeriodPicture(QSize size)
    : size_(size)
    , labelHeight_(LabelHeight(size.height())) {}

int PeriodPicture::HeadHeight() const {
    return Twips::ToPixels(labelHeight_ - Overlap + FirstTop) + HeaderDrop;
}

int PeriodPicture::RowTop(int row) const {
    return (labelHeight_ - Overlap) * row + FirstTop;
}

int PeriodPicture::TextBottom() const {
    return Twips::ToPixels(FigureRows::ValueDrop) + TextHeight();
}

QRect PeriodPicture::NamePlace(int row) const {
    return {LabelLeft, Twips::ToPixels(RowTop(row)), ValuesPlace().left() - LabelLeft,
            Twips::ToPixels(labelHeight_)};
}

QPoint PeriodPicture::BarPlace(int row) const {
    return {Twips::ToPixels(BarLeft), Twips::ToPixels(RowTop(row) + FigureRows::BarDrop)};
}

QRect PeriodPicture::ValuesPlace() const {
    const int left = Twips::ToPixels(Grid.origin);
    return {QPoint(left, HeadHeight()), QPoint(size_.width() - 2, size_.height() - 2)};
}

QRect PeriodPicture::ValuePlace(int row) const {
    return {ValuesPlace().left(),
            Twips::ToPixels(RowTop(row)) + Twips::ToPixels(FigureRows::ValueDrop),
            Twips::ToPixels(ValueWidth), TextHeight()};
}

void PeriodPicture::PaintGround(QPainter& painter) const {
    const QRect place(QPoint(), size_);
    PaintArea(painter, place, TheStyle().paper);
    Grid.DrawGrid(painter, size_.height());
    PaintFrame(painter, place, TheStyle().frame);
}

void PeriodPicture::ClearHead(QPainter& painter) const {
    painter.fillRect(1, 1, size_.width() - 2, HeadHeight() - 1, TheStyle().paper);
}

void PeriodPicture::PaintScale(QPainter& painter) const {
    ClearHead(painter);
    painter.setFont(TheStyle().small);
    painter.setPen(TheStyle().barRowText);
    for (int percent = 0; percent * PixelsAtTarget / 100 < MostPixels; percent += ScaleStep) {
        const int line = BarPlace(1).x() + percent * PixelsAtTarget / 100;
        painter.drawText(QRect(line - ScaleWidth / 2, 0, ScaleWidth, HeadHeight()), Qt::AlignCenter,
                         QString::number(percent) + u'%');
    }
}

void PeriodPicture::PaintNames(QPainter& painter, const PeriodFigures& figures) const {
    const auto place = [this](int row) {
        return QRect(NamePlace(row).topLeft(), QSize(NamePlace(row).width(), TextBottom()));
    };
    FigureRows::PaintTexts(painter, figures.Rows(), place, &NutrientFigure::Caption);
}

void PeriodPicture::PaintBars(QPainter& painter, const PeriodFigures& figures) const {
    PaintGround(painter);
    PaintNames(painter, figures);
    FigureRows::PaintBars(
        painter, figures.Rows(), [this](int row) { return BarPlace(row); },
        [](const NutrientFigure& figure) { return BarWidth(figure.Part()); });
}

void PeriodPicture::PaintValues(QPainter& painter, const PeriodFigures& figures) const {
    PaintGround(painter);
    PaintNames(painter, figures);
    painter.fillRect(ValuesPlace(), TheStyle().paper);
    const int space = Twips::ToPixels(ValueWidth);
    FigureRows::PaintTexts(
        painter, figures.Rows(), [this](int row) { return ValuePlace(row); },
        [space](const NutrientFigure& figure) {
            return Leader::Fitting(ValueText(figure), TheStyle().small, space);
        });
}

double PeriodPicture::BarWidth(double partOfTarget) {
    const double width = Twips::PerPixel() * PixelsAtTarget * partOfTarget;
    const double limit = Twips::PerPixel() * MostPixels;
    if (static_cast<float>(width) > static_cast<float>(limit))
        return limit;
    return qMax(0.0, width);
}

QString PeriodPicture::ValueText(const NutrientFigure& figure) {
    return Points + PeriodFigures::Text(figure);
}
