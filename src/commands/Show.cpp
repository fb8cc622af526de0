#include "analysis/DayFigures.h"
#include "analysis/LoggedSums.h"
#include "commands/Commands.h"
#include "commands/DateOption.h"
#include "commands/LoggedLine.h"
#include "commands/Session.h"
#include "foods/Meals.h"
#include "intake/DayLog.h"
#include "model/User.h"
#include "records/KeyText.h"
#include "records/RecordsReading.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Convert.h"
#include "runtime/Format.h"
#include "runtime/StartSettings.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {
/// All that the day screen shows.
struct Day {
    QDate date;
    QString person;
    double weight; ///< 0: none
    LoggedMeals meals;
    DayFigures figures;
};

Day Read(QDate date) {
    const User user = DayLog::UserOn(date);
    return {date, user.UserName, DayLog::Weight(date), DayLog::FoodsOf(date),
            DayFigures(LoggedSums::OfDay(date).value_or(Nuts()), user.RDIs)};
}

void PrintMeal(const Session& session, size_t meal, const std::vector<LoggedFood>& foods) {
    constexpr int keyWidth = 12;
    session.Print(QString());
    session.Print(Meals::NameOf(int(meal)));
    for (const LoggedFood& food : foods)
        session.Print("  " + KeyText::Of(KeyText::Entry, food.RecID).leftJustified(keyWidth) +
                      LoggedLine::Text(food));
}

void PrintFigure(const Session& session, const NutrientFigure& row) {
    constexpr int nameWidth = 22;
    constexpr int amountWidth = 14;
    constexpr int percentWidth = 6;
    const QString line = row.Caption().leftJustified(nameWidth) +
                         DayFigures::Text(row).rightJustified(amountWidth) + "  ";
    if (row.target == 0)
        return session.Print(line.trimmed());
    session.Print(line + row.Percent().rightJustified(percentWidth) + " of " +
                  DecimalText(NutrientFigure::numFix(row.target)) + ' ' + row.unit);
}

void PrintLines(const Session& session, const Day& day) {
    session.Print(FormatLongDate(day.date) + ", " + day.person);
    if (day.weight > 0)
        session.Print("Weight: " + DecimalText(day.weight) + " pounds");
    for (size_t meal = 0; meal < day.meals.size(); ++meal)
        PrintMeal(session, meal, day.meals[meal]);
    session.Print(QString());
    if (!day.figures.HasData())
        session.Print(QStringLiteral("No data for this day"));
    else
        for (const NutrientFigure& row : day.figures.Rows())
            PrintFigure(session, row);
}

QJsonObject Facts(const NutrientFigure& row) {
    return {{"nutrient", QLatin1String(Info(row.nutrient).property)},
            {"unit", row.unit},
            {"amount", row.value},
            {"target", row.target},
            {"percent", row.target == 0 ? QJsonValue() : QJsonValue(row.Part() * 100)}};
}

QJsonObject Facts(const Day& day) {
    QJsonArray meals;
    for (size_t meal = 0; meal < day.meals.size(); ++meal) {
        QJsonArray foods;
        for (const LoggedFood& food : day.meals[meal])
            foods.append(LoggedLine::Facts(food));
        meals.append(QJsonObject{{"meal", Meals::NameOf(int(meal))}, {"foods", foods}});
    }
    QJsonArray totals;
    for (const NutrientFigure& row : day.figures.Rows())
        totals.append(Facts(row));
    return {{"date", day.date.toString(Qt::ISODate)},
            {"profile", day.person},
            {"weight", day.weight > 0 ? QJsonValue(day.weight) : QJsonValue()},
            {"meals", meals},
            {"hasData", day.figures.HasData()},
            {"totals", totals}};
}

int Show(const Session& session, QDate date) {
    StartSettings::ReadRest(App().AppInfo);
    const RecordsReading records(session.Records());
    session.ChooseProfile();
    const Day day = Read(date.isNull() ? Clock::Today() : date);
    session.json ? session.Print(Facts(day)) : PrintLines(session, day);
    return Done;
}
} // namespace

void Commands::AddShow(const Command& program, Session& session) {
    const Command command = program.Add(
        "show", "Shows a day: its weight, its meals, and its totals against the targets");
    const auto date = std::make_shared<QDate>();
    DateOption::Add(command, "DAY", *date, "The day; otherwise today");
    command.Footer("Example: halvane-data show 2026-03-02");
    command.Does([&session, date] { return Show(session, *date); });
}
