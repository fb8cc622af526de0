#include "analysis/ui/DailyRow.h"

#include "analysis/charts/DayPicture.h"
#include "analysis/ui/ChartBar.h"
#include "analysis/ui/ChartLabel.h"
#include "analysis/ui/LedLabel.h"
#include "drawing/Style.h"

DailyRow::DailyRow(int i, const NutrientFigure& figure, const Views& views)
    : ChartRow(i, figure.nutrient, views)
    , shown_(figure) {
    lbl()->setGeometry(DayPicture::NamePlace(i));
    imgBar()->move(DayPicture::BarPlace(i));
    lblVal()->move(DayPicture::ValuePlace(i));
    SetFigure(figure);
}

void DailyRow::Show(const NutrientFigure& figure, const QString& text, const DayPicture& picture) {
    shown_ = figure;
    SetBar(picture.BarWidth(figure.value, figure.target));
    lblVal()->SetCaption(text);
    SetFigure(figure);
}

void DailyRow::SetBar(double width) {
    imgBar()->SetWidth(width);
    imgBar()->setHidden(BarIsNarrow());
}

void DailyRow::FitBar(const DayPicture& picture) {
    const double width = picture.BarWidth(shown_.value, shown_.target);
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
