#include "records/report/ReportText.h"

#include "model/Nutrients.h"
#include "runtime/Convert.h"
#include "runtime/Counted.h"
#include "runtime/Dates.h"
#include "runtime/Format.h"
#include "runtime/Round.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr int InchesInAFoot = 12;
const QString Unknown = QStringLiteral("–");

QString LongDay(QDate day) {
    return Dates::MonthName(day.month()) + u' ' + QString::number(day.day()) + u", " +
           QString::number(day.year());
}

int DaysIn(const Period& period) {
    return Dates::DaysBetween(period.from, period.to) + 1;
}

QString Amount(double value, QLatin1String unit) {
    return DecimalText(NutrientFigure::numFix(value)) + u' ' + unit;
}

QString Pounds(double weight) {
    return QString::number(weight, 'f', 1) + u" lb";
}

QString Change(double pounds) {
    return Pounds(std::abs(pounds)) + QLatin1String(pounds < 0 ? " less" : " more");
}

QString Height(qint32 inches) {
    return QStringLiteral("%1 ft %2 in").arg(inches / InchesInAFoot).arg(inches % InchesInAFoot);
}

QString GramsADay(const ReportFigures& figures, Nutrient id, double kcal) {
    const double grams = figures.Of(id).figure.value;
    return Amount(grams, QLatin1String("g")) + u", " + ReportText::Calories(grams * kcal);
}
} // namespace

QString ReportText::Person(const User& person) {
    return QStringList{person.UserName, QLatin1String(person.Gender == 1 ? "male" : "female"),
                       DecimalText(person.Age) + u" years", Height(person.Height),
                       QString::number(person.CurrentWeight) + u" lb"}
        .join(u", ");
}

QString ReportText::Month(QDate day) {
    return Dates::MonthName(day.month()) + u' ' + QString::number(day.year());
}

QString ReportText::Days(const Period& period) {
    return period.from == period.to ? LongDay(period.from)
                                    : QString(LongDay(period.from) + u" to " + LongDay(period.to));
}

QString ReportText::Day(QDate day) {
    return Dates::WeekdayName(Dates::Weekday(day)) + u", " + LongDay(day);
}

QString ReportText::Logged(const ReportFigures& figures) {
    if (figures.days.empty())
        return NothingLogged;
    return QString::number(figures.days.size()) + u" of " +
           Counted(DaysIn(figures.period), "day has", "days have") + u" entries in the log: " +
           Counted(figures.entries, "entry", "entries") + u" in all.";
}

QString ReportText::Divisor(const ReportFigures& figures) {
    const QString logged = Counted(qint64(figures.days.size()), "day", "days");
    return u"Each average is the sum over the period divided by the " + logged +
           u" with entries, not by all " + Counted(DaysIn(figures.period), "day.", "days.");
}

QString ReportText::Coverage() {
    return QStringLiteral(
        "Coverage is the share of the logged grams whose amount is known; below 100% the true "
        "amount can be higher. Own foods, recipes and foods that are gone count as 100 grams a "
        "serving.");
}

QString ReportText::Foods(const ReportFigures::Meal& meal) {
    return meal.foods.join(u"; ");
}

QString ReportText::Calories(double calories) {
    return QString::number(RoundForDisplay(calories)) + u" kcal";
}

QString ReportText::Percent(double part) {
    return Format(part, NumberMask::Percent);
}

std::array<QString, ReportText::AverageHead.size()>
ReportText::AverageRow(const ReportFigures::Average& row) {
    const NutrientFigure& figure = row.figure;
    return {figure.Caption(), row.known ? Amount(figure.value, figure.unit) : Unknown,
            figure.target == 0 ? Unknown : Amount(figure.target, figure.unit),
            row.known ? figure.Percent() : QString(), Percent(row.coverage)};
}

std::vector<ReportText::Line> ReportText::EnergyLines(const ReportFigures& figures) {
    if (figures.energy.What() != EnergyShares::Content::Sectors)
        return {};
    const auto [fat, protein, carbs] = figures.energy.Captions();
    return {{fat, GramsADay(figures, Nutrient::TotalFat, KcalPerGram::Fat)},
            {protein, GramsADay(figures, Nutrient::Protein, KcalPerGram::Protein)},
            {carbs, GramsADay(figures, Nutrient::Carbs, KcalPerGram::Carbs)}};
}

std::vector<ReportText::Line> ReportText::MealLines(const ReportFigures& figures) {
    std::vector<Line> lines;
    for (const ReportFigures::MealShare& meal : figures.meals)
        lines.push_back({meal.name, Percent(meal.part)});
    return lines;
}

std::vector<ReportText::Line> ReportText::WeightLines(const WeightCurve& weights) {
    const auto at = [](const WeightLog::Entry& entry) -> QString {
        return Pounds(entry.weight) + u", " + LongDay(entry.day);
    };
    const auto& entries = weights.entries;
    const auto [least, greatest] =
        std::ranges::minmax_element(entries, {}, &WeightLog::Entry::weight);
    return {{QStringLiteral("First"), at(entries.front())},
            {QStringLiteral("Last"), at(entries.back())},
            {QStringLiteral("Change"), Change(entries.back().weight - entries.front().weight)},
            {QStringLiteral("Least"), at(*least)},
            {QStringLiteral("Greatest"), at(*greatest)}};
}
