#include "analysis/ui/DailyRow.h"

#include "analysis/DayFigures.h"
#include "analysis/ui/BarGrid.h"
#include "analysis/ui/ChartBar.h"
#include "analysis/ui/ChartLabel.h"
#include "analysis/ui/LedLabel.h"
#include "toolkit/Style.h"
#include "toolkit/Twips.h"

namespace {

const QString Leader = QStringLiteral(".......................");
const QString EmptyValue = QStringLiteral("..............................0");

// Pixels.
constexpr int LabelLeft = 7;
constexpr int RowHeight = 14;
constexpr int FirstTop = 2;

constexpr int RightMargin = 30; ///< twips

} // namespace

DailyRow::DailyRow(int i, const NutrientFigure& figure, const Views& views)
    : ChartRow(i, figure.nutrient, views)
    , shown_(figure) {
    lbl()->setGeometry(LabelLeft, Top(i), views.labels->width() - LabelLeft,
                       RowHeight + Twips::ToPixels(ValueDrop));
    imgBar()->move(Twips::ToPixels(BarGrid::Origin), Top(i) + Twips::ToPixels(BarDrop));
    lblVal()->move(0, Top(i) + Twips::ToPixels(ValueDrop));
    SetFigure(figure);
}

int DailyRow::Top(int i) {
    return FirstTop + (i - 1) * RowHeight;
}

void DailyRow::Show(const NutrientFigure& figure, int panelWidth) {
    Take(figure);
    SetBar(barWidth(figure.value, figure.target, panelWidth));
    lblVal()->SetCaption(Leader + DayFigures::Text(figure));
}

void DailyRow::ShowNothing(const NutrientFigure& figure) {
    Take(figure);
    SetBar(0);
    lblVal()->SetCaption(EmptyValue);
}

void DailyRow::Take(const NutrientFigure& figure) {
    shown_ = figure;
    SetFigure(figure);
}

void DailyRow::SetBar(double width) {
    imgBar()->SetWidth(width);
    imgBar()->setHidden(BarIsNarrow());
}

void DailyRow::FitBar(int panelWidth) {
    const double width = barWidth(shown_.value, shown_.target, panelWidth);
    if (width != imgBar()->Width())
        SetBar(width);
}

void DailyRow::FitValue() {
    lblVal()->SetSpace(lblVal()->parentWidget()->width());
    lblVal()->resize(lblVal()->sizeHint());
}

void DailyRow::SetLit(bool lit) {
    const QColor& colour = lit ? TheStyle().barRowHover : TheStyle().barRowText;
    lbl()->SetForeColor(colour);
    lblVal()->SetForeColor(colour);
    imgBar()->SetHilited(lit);
}

double DailyRow::barWidth(double value, double rdi, int panelWidth) {
    const double width = Twips::PerPixel() * 100 * NutrientFigure::PartOfTarget(value, rdi);
    const int end = Twips::FromPixels(panelWidth) - RightMargin;
    if (static_cast<float>(end) < static_cast<float>(width + BarGrid::Origin))
        return qMax(0, end - BarGrid::Origin);
    return qMax(0.0, width);
}
