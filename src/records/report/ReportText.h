#pragma once

#include "records/report/ReportFigures.h"

#include <array>

/// What a report says in words, in any format.
namespace ReportText {
inline constexpr auto Title = "Nutrition report";
inline constexpr auto LoggedDays = "Logged days";
inline constexpr auto AverageDay = "The average logged day";
inline constexpr auto Energy = "Where the calories came from";
inline constexpr auto Weight = "Weight";
inline constexpr auto Meals = "What was eaten";
inline constexpr auto NothingLogged = "Nothing was logged in this period.";
inline constexpr auto WeightOfDay = "Weight of a day";
inline constexpr auto MeanWeight = "Mean of seven days";
inline constexpr auto NoWeight = "No weight was entered in this period.";

QString Person(const User& person);   ///< "Anna, male, 40 years, 5 ft 10 in, 200 lb"
QString Month(QDate day);             ///< "March 2026"
QString Days(const Period& period);   ///< "March 1, 2026 to March 31, 2026"
QString Day(QDate day);               ///< "Monday, March 2, 2026"
QString Logged(const ReportFigures&); ///< how many days and entries
QString Divisor(const ReportFigures&);
QString Coverage();
QString Foods(const ReportFigures::Meal& meal);
QString Calories(double calories);
QString Percent(double part);

/// The head and the cells of a row of averages.
inline constexpr std::array AverageHead{"", "Average", "Target", "Percent", "Coverage"};
std::array<QString, AverageHead.size()> AverageRow(const ReportFigures::Average& row);

struct Line {
    QString caption, value;
};
std::vector<Line> EnergyLines(const ReportFigures&); ///< fat, protein, carbohydrate, as in the pie
std::vector<Line> MealLines(const ReportFigures&);
std::vector<Line> WeightLines(const WeightCurve& weights);
} // namespace ReportText
