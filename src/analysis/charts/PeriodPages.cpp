#include "analysis/charts/PeriodPages.h"

#include "analysis/charts/PeriodPicture.h"
#include "analysis/charts/PrintedPie.h"
#include "analysis/charts/WeightCurvePainting.h"
#include "drawing/Pages.h"
#include "drawing/Style.h"
#include "runtime/Dates.h"

namespace {

constexpr auto BarsHeading = "Average day in percent of the targets";
constexpr auto ValuesHeading = "Average nutrient values";
/// As wide as the other pictures with a frame.
constexpr QSize WeightsSize(PeriodPicture::UsualSize.width(),
                            WeightCurvePainting::UsualSize.height());

} // namespace

QString PeriodPages::Days() const {
    return Dates::ShortText(period.from) + " to " + Dates::ShortText(period.to);
}

/// Each of the two pages of a usual paper is full.
void PeriodPages::Paint(Pages& pages) const {
    PaintHead(pages);
    PaintBars(pages);
    pages.Figure(QStringLiteral("Caloric breakdown"), PrintedPie::Size(),
                 [this](QPainter& painter) { PrintedPie::Paint(painter, energy); });
    PaintWeights(pages);
    PaintValues(pages);
}

void PeriodPages::PaintHead(Pages& pages) const {
    const Style& style = TheStyle();
    pages.Line(QStringLiteral("Report"), style.cardTitle, style.heading);
    pages.Line(Days(), style.strong, style.ink);
    if (averageWeight > 0)
        pages.Line("Average weight: " + QString::number(averageWeight) + " lbs", style.text,
                   style.ink);
}

/// Averages need food and, for the targets, a weight.
void PeriodPages::PaintAverages(Pages& pages, const char* heading,
                                const std::function<void(QPainter&)>& paint) const {
    if (!averages.Rows().empty())
        return pages.Figure(QLatin1String(heading), PeriodPicture::UsualSize, paint);
    pages.HeadingOfLines(QLatin1String(heading));
    pages.Line(averageWeight > 0 ? QStringLiteral("Nothing is logged in this period.")
                                 : QStringLiteral("There is no weight entry in this period, so the "
                                                  "averages cannot be worked out."),
               TheStyle().text, TheStyle().quietInk);
}

void PeriodPages::PaintBars(Pages& pages) const {
    PaintAverages(pages, BarsHeading, [this](QPainter& painter) {
        const PeriodPicture picture(PeriodPicture::UsualSize);
        picture.PaintBars(painter, averages);
        picture.PaintScale(painter);
    });
}

void PeriodPages::PaintValues(Pages& pages) const {
    PaintAverages(pages, ValuesHeading, [this](QPainter& painter) {
        const PeriodPicture picture(PeriodPicture::UsualSize);
        picture.PaintValues(painter, averages);
        picture.ClearHead(painter);
    });
}

void PeriodPages::PaintWeights(Pages& pages) const {
    pages.Figure(weights.mean.size() < 2
                     ? QStringLiteral("Weight (lbs)")
                     : QStringLiteral("Weight (lbs); the thin dark line is its seven-day mean"),
                 WeightsSize, [this](QPainter& painter) {
                     WeightCurvePainting::Paint(painter, weights, WeightsSize);
                 });
}
