#include "tour/ReportWalk.h"

#include "tour/Guide.h"
#include "tour/PrintWalk.h"

#include "analysis/ui/ChartLabel.h"
#include "analysis/ui/ucLineChart.h"
#include "model/Nutrients.h"
#include "model/User.h"
#include "runtime/Clock.h"
#include "runtime/Format.h"
#include "store/Connection.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {

/// A food of the catalogue, how much of it is eaten at a time, and how often.
struct Portion {
    const char* food; ///< the start of its name
    int grams;
    const char* meal;
    int everyDays;
};

constexpr Portion Portions[] = {
    {"Cereals, oats, regular and quick and instant, unenriched, cooked", 234, "Breakfast", 1},
    {"Milk, reduced fat, fluid, 2% milkfat, with added", 244, "Breakfast", 1},
    {"Bananas, raw", 118, "Breakfast", 2},
    {"Egg, whole, cooked, hard-boiled", 100, "Breakfast", 3},
    {"Orange juice, raw", 248, "Breakfast", 2},
    {"Bread, whole-wheat, commercially prepared", 84, "Lunch", 1},
    {"Cheese, cheddar", 43, "Lunch", 2},
    {"Tomatoes, red, ripe, raw, year round", 123, "Lunch", 1},
    {"Apples, raw, with skin", 182, "Lunch", 2},
    {"Beans, black, mature seeds, cooked", 172, "Lunch", 3},
    {"Chicken, broilers or fryers, breast, meat only, cooked, roasted", 172, "Dinner", 2},
    {"Fish, salmon, Atlantic, farmed, cooked", 178, "Dinner", 3},
    {"Rice, brown, long-grain, cooked", 292, "Dinner", 2},
    {"Potatoes, baked, flesh", 312, "Dinner", 3},
    {"Broccoli, cooked, boiled, drained, without salt", 156, "Dinner", 1},
    {"Oil, olive", 14, "Dinner", 1},
    {"Nuts, almonds", 28, "Snacks", 1},
    {"Yogurt, plain, low fat", 170, "Snacks", 2},
    {"Ice creams, vanilla", 66, "Snacks", 5},
};

QString IsoText(QDate day) {
    return u'\'' + day.toString(Qt::ISODate) + u'\'';
}

QString Within(QDate start, QDate end) {
    return " WHERE UDate BETWEEN " + IsoText(start) + " AND " + IsoText(end);
}

void Run(const QString& sql) {
    UserDB().Raw().exec(sql.toStdString());
}

/// The statement's first value.
double Figure(const QString& sql) {
    SQLite::Statement statement(UserDB().Raw(), sql.toStdString());
    statement.executeStep();
    return statement.getColumn(0).getDouble();
}

/// Copies the portion's amounts from the catalogue into the log.
void LogPortion(const Portion& portion, QDate day) {
    SQLite::Statement food(FoodDB().Raw(),
                           "SELECT * FROM FOODS WHERE FoodName LIKE ?1 || '%' ORDER BY ID LIMIT 1");
    food.bind(1, portion.food);
    if (!food.executeStep())
        return;
    std::string columns, values;
    for (const NutrientInfo& nutrient : Nutrients()) {
        columns += std::string(nutrient.logColumn) + ",";
        const double amount = food.getColumn(nutrient.profileColumn).getDouble();
        values += std::to_string(amount / 100 * portion.grams) + ",";
    }
    SQLite::Statement insert(UserDB().Raw(), "INSERT INTO USER_FOODS (" + columns +
                                                 "UID,FoodName,Serving,ID,Meal,UDate,QTY) VALUES "
                                                 "(" +
                                                 values + "?1,?2,'1 serving',?3,?4,?5,1)");
    insert.bind(1, User::Current().UID);
    insert.bind(2, food.getColumn("FoodName").getString());
    insert.bind(3, food.getColumn("ID").getInt());
    insert.bind(4, portion.meal);
    insert.bind(5, day.toString(Qt::ISODate).toStdString());
    insert.exec();
}

void Weigh(double weight, QDate day) {
    Run(QStringLiteral("INSERT INTO USER_WEIGHTS (UID, UDate, Weight) VALUES (%1, %2, %3)")
            .arg(QString::number(User::Current().UID), IsoText(day), QString::number(weight)));
}

/// Restores the log, which held today's entries only.
void LeaveOnly(QDate today) {
    for (const char* table : {"USER_FOODS", "USER_WEIGHTS"})
        Run("DELETE FROM " + QLatin1String(table) + " WHERE UDate <> " + IsoText(today));
}

} // namespace

ReportWalk::ReportWalk(Guide& guide)
    : guide_(guide) {}

void ReportWalk::Go() {
    OneEntry();
    RefusedDate();
    NothingLogged();
    AWeek();
    AYear();
    ConstantWeight();
    WithoutWeights();
    LeaveLogs();
}

QWidget* ReportWalk::Frame() {
    return guide_.Window(QStringLiteral("frmHOME"));
}

QWidget* ReportWalk::Screen() {
    return guide_.Window(QStringLiteral("frmReport"));
}

void ReportWalk::SetPeriod(QDate start, QDate end) {
    guide_.Type(Screen(), QStringLiteral("txtStart"), FormatShortDate(start));
    guide_.Type(Screen(), QStringLiteral("txtEnd"), FormatShortDate(end));
}

void ReportWalk::Report(QDate start, QDate end) {
    SetPeriod(start, end);
    guide_.Press(Screen(), QStringLiteral("cmdRefresh"));
}

void ReportWalk::ExpectNoWeight(const QString& picture) {
    guide_.Foresee(QStringLiteral("frmAlert"), [this, picture](QWidget* alert) {
        guide_.Picture(alert, picture);
        guide_.Press(alert, QStringLiteral("cmdOK"));
    });
}

void ReportWalk::LookAtViews(const QString& name) {
    const std::pair<const char*, const char*> views[] = {
        {"cmdBar", "bars"}, {"cmdVals", "values"}, {"cmdPie", "pie"}, {"cmdLine", "line"}};
    for (const auto& [button, view] : views) {
        guide_.Press(Screen(), QLatin1String(button));
        guide_.Picture(Frame(), QString("report-" + name + u'-' + QLatin1String(view)));
    }
}

/// Compares the figures of the charts with those of plain SQL.
void ReportWalk::CheckFigures(QDate start, QDate end) {
    const auto* line = guide_.Find<ucLineChart>(Screen(), QStringLiteral("ucLine"));
    guide_.CheckValue(UserDB(), "SELECT count(*) FROM USER_WEIGHTS" + Within(start, end),
                      int(line->Points().size()));
    const auto* calories = guide_.Find<ChartLabel>(Screen(), QStringLiteral("lblVal1"));
    const double average = Figure(
        "SELECT round(sum(Calories)) / count(DISTINCT UDate) FROM USER_FOODS" + Within(start, end));
    guide_.Check(
        calories->Caption().endsWith("." + Format(average, NumberMask::CalorieTotal) + " kcal"),
        QString("the average calories are " + QString::number(average)));
}

void ReportWalk::OneEntry() {
    const QDate today = Clock::Today();
    guide_.Press(Frame(), QStringLiteral("cmdReport"));
    LookAtViews(QStringLiteral("one-entry"));
    CheckFigures(today.addDays(-6), today);
}

void ReportWalk::RefusedDate() {
    guide_.Press(Screen(), QStringLiteral("cmdBar"));
    guide_.Foresee(QStringLiteral("frmAlert"), [this](QWidget* alert) {
        guide_.Picture(alert, QStringLiteral("alert-report-date"));
        guide_.Press(alert, QStringLiteral("cmdOK"));
    });
    guide_.Type(Screen(), QStringLiteral("txtEnd"), QStringLiteral("tomorrow"));
    guide_.Press(Screen(), QStringLiteral("cmdRefresh"));
}

void ReportWalk::NothingLogged() {
    ExpectNoWeight(QStringLiteral("alert-report-no-weight"));
    Report(QDate(2020, 1, 1), QDate(2020, 1, 31));
    LookAtViews(QStringLiteral("no-data"));
}

void ReportWalk::EatOn(QDate day) {
    for (const Portion& portion : Portions)
        if (day.toJulianDay() % portion.everyDays == 0)
            LogPortion(portion, day);
}

/// Fills the days before today; today's entries stay.
void ReportWalk::FillDays(int days) {
    LeaveOnly(Clock::Today());
    Run(QStringLiteral("BEGIN"));
    for (int back = 1; back < days; ++back) {
        const QDate day = Clock::Today().addDays(-back);
        EatOn(day);
        if (back % 9 != 4)
            Weigh(198.5 + back / 30.0 + back * 7 % 5 / 3.0, day);
    }
    Run(QStringLiteral("COMMIT"));
}

void ReportWalk::AWeek() {
    const QDate today = Clock::Today();
    FillDays(7);
    Report(today.addDays(-6), today);
    CheckFigures(today.addDays(-6), today);
    LookAtViews(QStringLiteral("week"));
}

void ReportWalk::AYear() {
    const QDate today = Clock::Today();
    FillDays(365);
    Report(today.addDays(-364), today);
    CheckFigures(today.addDays(-364), today);
    LookAtViews(QStringLiteral("year"));
    PrintWalk(guide_).Report();
}

void ReportWalk::ConstantWeight() {
    const QDate today = Clock::Today();
    Run(QStringLiteral("DELETE FROM USER_WEIGHTS"));
    for (int back = 0; back <= 100; ++back)
        Weigh(198.5, today.addDays(-back));
    Report(today.addDays(-100), today);
    CheckFigures(today.addDays(-100), today);
    LookAtViews(QStringLiteral("constant-weight"));
}

void ReportWalk::WithoutWeights() {
    Run(QStringLiteral("DELETE FROM USER_WEIGHTS"));
    ExpectNoWeight(QStringLiteral("alert-report-user-without-weights"));
    guide_.Press(Frame(), QStringLiteral("cmdReport"));
    LookAtViews(QStringLiteral("without-weights"));
    guide_.CheckValue(UserDB(), QStringLiteral("SELECT current_weight FROM profiles"), 198);
}

/// Today's weight is entered again.
void ReportWalk::LeaveLogs() {
    LeaveOnly(Clock::Today());
    Weigh(198.5, Clock::Today());
    guide_.Press(Screen(), QStringLiteral("cmdBar"));
    guide_.Press(Screen(), QStringLiteral("cmdDone"));
}
