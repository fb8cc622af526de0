#include "figures/ShownFigures.h"

#include "analysis/DateAxis.h"
#include "analysis/WeightAxis.h"
#include "analysis/charts/Pie.h"
#include "analysis/ui/ChartBar.h"
#include "analysis/ui/ChartLabel.h"
#include "analysis/ui/PiePicture.h"
#include "analysis/ui/ucBarChart.h"
#include "analysis/ui/ucDaily.h"
#include "analysis/ui/ucGlance.h"
#include "analysis/ui/ucLineChart.h"
#include "analysis/ui/ucPieChart.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "figures/FigureLine.h"
#include "foods/ScaledFood.h"
#include "foods/ui/frmNutInfo.h"
#include "runtime/RuntimeError.h"

#include <QLabel>
#include <QTimer>

#include <cmath>
#include <numbers>

namespace {

constexpr int PieSamples = 96;
constexpr double SampledRadius = 0.6;

QString Caption(const QWidget& parent, const QString& name) {
    return parent.findChild<QWidget*>(name)->property("Caption").toString();
}

QString LabelText(const QWidget& parent, const char* name) {
    return parent.findChild<QLabel*>(QLatin1String(name))->text();
}

void PrintRows(const char* what, const QWidget& chart, size_t count) {
    FigureLine line(what);
    for (size_t i = 1; i <= count; ++i) {
        const auto* bar = chart.findChild<ChartBar*>(QStringLiteral("imgBar%1").arg(i));
        line << bar->Width() << (bar->isHidden() ? "hidden" : "shown")
             << Caption(chart, QStringLiteral("lblVal%1").arg(i));
    }
}

/// The sector at that angle: 1 fat, 2 protein, 3 carbohydrate; 0 none.
char SectorAt(const QImage& picture, const PieForm& form, double angle) {
    const QPointF reach(std::cos(angle), -std::sin(angle));
    const QPointF place = form.centre + reach * form.radius * SampledRadius;
    const QColor colour = picture.pixelColor(int(place.x()), int(place.y()));
    const Style& style = TheStyle();
    const QColor sectors[] = {style.pieFat, style.pieProtein, style.pieCarbs};
    const auto found = std::find(std::begin(sectors), std::end(sectors), colour);
    return found == std::end(sectors) ? '0' : char('1' + (found - std::begin(sectors)));
}

QString SectorsOf(Pie& pie) {
    const QImage picture = pie.temp();
    QString sectors;
    for (int i = 0; i < PieSamples; ++i)
        sectors += QLatin1Char(
            SectorAt(picture, pie.Form(), (i + 0.5) * 2 * std::numbers::pi / PieSamples));
    return sectors;
}

void PrintPie(const char* what, const QWidget& chart) {
    Pie& pie = chart.findChild<PiePicture*>(QStringLiteral("picPIE"))->pie();
    FigureLine line(what);
    for (const char* name : {"aafat", "aaprotein", "aacarbs"})
        line << Caption(chart, QLatin1String(name));
    for (const double share : pie.Shares())
        line << share;
    line << SectorsOf(pie);
}

void PrintWeightLabels(const ucLineChart& weights) {
    FigureLine line("weightlabels");
    for (int i = 0; i < WeightAxis::LabelCount; ++i)
        line << Caption(weights, QStringLiteral("lblWeight%1").arg(i));
}

void PrintDateLabels(const ucLineChart& weights) {
    FigureLine line("datelabels");
    for (int i = 0; i < DateAxis::LabelCount; ++i) {
        const auto* label = weights.findChild<QWidget*>(QStringLiteral("lblDate%1").arg(i));
        if (!label->isHidden())
            line << i << label->property("Caption").toString()
                 << label->property("Left").toDouble();
    }
}

} // namespace

struct ShownFigures::Charts {
    frmNutInfo facts;
    ucDaily day;
    ucGlance month;
    ucBarChart averages;
    ucPieChart breakdown;
    ucLineChart weights;
};

ShownFigures::ShownFigures()
    : charts_(std::make_unique<Charts>()) {}

ShownFigures::~ShownFigures() = default;

void ShownFigures::PrintMeasures() {
    FigureLine("measures") << Twips::PerPixel() << Twips::FromPixels(charts_->day.width())
                           << DateAxis::LabelWidth;
}

void ShownFigures::PrintFacts(const ScaledFood& food) {
    frmNutInfo& facts = charts_->facts;
    QTimer::singleShot(0, &facts, &QDialog::reject);
    facts.showFood(food);
    FigureLine line("facts");
    line << Caption(facts, QStringLiteral("aaServSize")) << LabelText(facts, "lblFatCals");
    for (const char* name : {"lblPerFat", "lblPerSatFat", "lblPerCholesterol", "lblPerSodium",
                             "lblPerCarbs", "lblPerFiber", "lblPerProtein"})
        line << LabelText(facts, name);
    for (const Nutrient id : StoredOrder())
        line << LabelText(facts, Info(id).factsLabel);
}

void ShownFigures::PrintDay(QDate day) {
    charts_->day.setDate(day);
    PrintRows("day", charts_->day, ChartOrder().size());
    PrintPie("daypie", charts_->day);
}

void ShownFigures::PrintMonth(QDate from, QDate to) {
    charts_->month.UpdateGlance(from, to);
    FigureLine("month") << Caption(charts_->month, QStringLiteral("lblAvgCals"));
    PrintPie("monthpie", charts_->month);
}

void ShownFigures::PrintPeriod(QDate from, QDate to) {
    PrintAverages(from, to);
    PrintBreakdown(from, to);
    PrintWeights(from, to);
}

void ShownFigures::PrintAverages(QDate from, QDate to) {
    ucBarChart& averages = charts_->averages;
    try {
        averages.updateBars(from, to);
    } catch (const RuntimeError& error) {
        FigureLine("noaverages") << error.Number();
        return;
    }
    FigureLine("header") << Caption(averages, QStringLiteral("ucHeader1"));
    PrintRows("averages", averages, PeriodOrder().size());
}

void ShownFigures::PrintBreakdown(QDate from, QDate to) {
    charts_->breakdown.updatePie(from, to);
    PrintPie("periodpie", charts_->breakdown);
}

void ShownFigures::PrintWeights(QDate from, QDate to) {
    ucLineChart& weights = charts_->weights;
    weights.updateLineChart(from, to);
    PrintWeightLabels(weights);
    PrintDateLabels(weights);
    FigureLine line("line");
    for (const PlotPoint& point : weights.Points())
        line << point.x << point.y << point.weight;
}
