#include "figures/ReportLines.h"

#include "figures/FigureLine.h"
#include "records/report/ReportFigures.h"

namespace {

void PrintAverages(const ReportFigures& report) {
    FigureLine line("reportaverages");
    line << report.entries << int(report.days.size());
    for (const ReportFigures::Average& row : report.averages)
        line << int(row.known) << row.figure.value << row.figure.target << row.coverage;
}

void PrintMeals(const ReportFigures& report) {
    for (const ReportFigures::Day& day : report.days) {
        FigureLine line("reportday");
        line << day.day.toString(Qt::ISODate) << day.Calories();
        for (const ReportFigures::Meal& meal : day.meals)
            line << meal.name << meal.calories << int(meal.foods.size());
    }
    FigureLine line("reportmeals");
    for (const ReportFigures::MealShare& meal : report.meals)
        line << meal.name << meal.part;
}

void PrintWeights(const WeightCurve& weights) {
    {
        FigureLine line("reportweights");
        for (const qint64 label : weights.weights)
            line << label;
        for (const PlotPoint& point : weights.points)
            line << point.x << point.y << point.weight;
    }
    FigureLine line("reportmean");
    for (const PlotPoint& point : weights.mean)
        line << point.x << point.y;
}

} // namespace

void PrintReport(const Period& period) {
    const ReportFigures report = ReportFigures::Of(period);
    PrintAverages(report);
    PrintMeals(report);
    PrintWeights(report.weights);
}
