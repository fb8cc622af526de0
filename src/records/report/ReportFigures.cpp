#include "records/report/ReportFigures.h"

#include "analysis/LoggedSums.h"
#include "foods/Meals.h"
#include "records/tables/IntakeTotals.h"
#include "records/tables/LogReading.h"
#include "runtime/Convert.h"

#include <algorithm>
#include <numeric>

namespace {
using Day = ReportFigures::Day;
using Meal = ReportFigures::Meal;

constexpr auto OtherMeal = "Other";

/// An entry without a meal, or with one that we do not know, comes last.
size_t PlaceOf(const QString& meal) {
    return size_t(Meals::Find(meal).value_or(int(Meals::Names.size())));
}

QString MealName(size_t place) {
    return QLatin1String(place < Meals::Names.size() ? Meals::Names[place] : OtherMeal);
}

QString FoodText(const LogReading& entry) {
    const double quantity = entry.Quantity().value_or(1);
    const QString times = quantity == 1 ? QString() : DecimalText(quantity) + u" × ";
    const QString serving = QString::fromStdString(entry.Serving());
    return times + serving + (serving.isEmpty() ? u"" : u" ") +
           QString::fromStdString(entry.FoodName());
}

/// The meal of that name; a new one where there is none.
Meal& MealIn(std::vector<Meal>& meals, const QString& name) {
    const auto meal = std::ranges::find(meals, name, &Meal::name);
    return meal == meals.end() ? meals.emplace_back(Meal{name, 0, {}}) : *meal;
}

void AddTo(std::vector<Meal>& meals, const LogReading& entry) {
    Meal& meal = MealIn(meals, MealName(PlaceOf(QString::fromStdString(entry.Meal()))));
    meal.calories += entry.Amount(Nutrient::Calories).value_or(0);
    meal.foods << FoodText(entry);
}

void SortMeals(std::vector<Meal>& meals) {
    std::ranges::stable_sort(meals, {}, [](const Meal& meal) { return PlaceOf(meal.name); });
}

IntakeTotals ReadDays(ReportFigures& figures) {
    IntakeTotals totals;
    for (LogReading entry(figures.period); entry.Next();) {
        totals.Add(entry);
        if (figures.days.empty() || figures.days.back().day != entry.Day())
            figures.days.push_back({entry.Day(), {}});
        AddTo(figures.days.back().meals, entry);
    }
    for (Day& day : figures.days)
        SortMeals(day.meals);
    figures.entries = totals.Entries();
    return totals;
}

void AddAverages(ReportFigures& figures, const IntakeTotals& totals) {
    for (const Nutrient id : PeriodOrder()) {
        const std::optional<double> sum = totals.Amount(id);
        const double average = sum ? *sum / double(figures.days.size()) : 0;
        const double target = figures.person.RDIs[id];
        figures.averages.push_back({{id, QLatin1String(Info(id).unit), average, target},
                                    sum.has_value(),
                                    totals.Coverage(id).value_or(0)});
    }
}

void ShareMeals(ReportFigures& figures) {
    std::vector<Meal> all;
    double whole = 0;
    for (const Day& day : figures.days)
        for (const Meal& meal : day.meals) {
            MealIn(all, meal.name).calories += meal.calories;
            whole += meal.calories;
        }
    SortMeals(all);
    for (const Meal& meal : all)
        if (whole > 0)
            figures.meals.push_back({meal.name, meal.calories / whole});
}

void ReadWeights(ReportFigures& figures) {
    std::vector<WeightLog::Entry> entries = WeightLog::Entries(figures.period);
    if (!entries.empty())
        figures.weights = WeightCurve::WithMean(std::move(entries));
}
} // namespace

double ReportFigures::Day::Calories() const {
    return std::accumulate(meals.begin(), meals.end(), 0.0,
                           [](double sum, const Meal& meal) { return sum + meal.calories; });
}

ReportFigures ReportFigures::Of(const Period& period) {
    ReportFigures figures;
    figures.person = User::Current();
    figures.period = period;
    const IntakeTotals totals = ReadDays(figures);
    AddAverages(figures, totals);
    ShareMeals(figures);
    figures.energy = EnergyShares::Of(LoggedSums::AverageEnergy(period));
    ReadWeights(figures);
    return figures;
}

bool ReportFigures::IsLogged(QDate day) const {
    return std::ranges::binary_search(days, day, {}, &Day::day);
}

const ReportFigures::Average& ReportFigures::Of(Nutrient nutrient) const {
    return *std::ranges::find(averages, nutrient,
                              [](const Average& row) { return row.figure.nutrient; });
}
