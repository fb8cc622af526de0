#include "intake/ui/DayPages.h"

#include "analysis/charts/DayPicture.h"
#include "analysis/charts/PrintedPie.h"
#include "drawing/Pages.h"
#include "drawing/Style.h"
#include "foods/Meals.h"
#include "intake/DayLog.h"
#include "runtime/Convert.h"
#include "runtime/Format.h"

namespace {

constexpr int BarsWidth = 298;
constexpr int ValuesWidth = 238;
constexpr int TotalsGap = 9; ///< between bars, values and pie

QString Described(const LoggedFood& food) {
    return food.name + u", " + food.serving + u" (x " + DecimalText(food.quantity) + u')';
}

} // namespace

void DayPages::Paint(Pages& pages) const {
    PaintHead(pages);
    const LoggedMeals meals = DayLog::FoodsOf(day_);
    for (size_t meal = 0; meal < meals.size(); ++meal)
        PaintMeal(pages, Meals::NameOf(int(meal)), meals[meal]);
    PaintTotals(pages);
}

void DayPages::PaintHead(Pages& pages) const {
    const Style& style = TheStyle();
    pages.Line(QStringLiteral("Daily Details"), style.cardTitle, style.heading);
    pages.Line(FormatLongDate(day_), style.strong, style.ink);
    if (const double weight = DayLog::Weight(day_); weight > 0)
        pages.Line("Weight: " + DecimalText(weight) + " lbs", style.text, style.ink);
}

void DayPages::PaintMeal(Pages& pages, const QString& name, const std::vector<LoggedFood>& foods) {
    const Style& style = TheStyle();
    pages.HeadingOfLines(name);
    if (foods.empty())
        pages.Line(QStringLiteral("Nothing is logged."), style.text, style.quietInk);
    for (const LoggedFood& food : foods)
        pages.Row(Described(food), DecimalText(NutrientFigure::numFix(food.calories)) + " kcal",
                  style.text, style.ink);
}

void DayPages::PaintTotals(Pages& pages) const {
    const DayPicture bars(BarsWidth);
    const DayPicture values(ValuesWidth);
    const QSize pie = PrintedPie::Size();
    const QSize all(BarsWidth + ValuesWidth + pie.width() + 2 * TotalsGap,
                    DayPicture::ScaleHeight + bars.Size().height());
    pages.Figure(QStringLiteral("Totals: percent of the targets, values, caloric breakdown"), all,
                 [&](QPainter& painter) {
                     painter.translate(0, DayPicture::ScaleHeight);
                     bars.PaintBars(painter, totals_);
                     bars.PaintScale(painter);
                     painter.translate(BarsWidth + TotalsGap, 0);
                     values.PaintValues(painter, totals_);
                     painter.translate(ValuesWidth + TotalsGap, 0);
                     PrintedPie::Paint(painter, totals_.Energy());
                 });
}
