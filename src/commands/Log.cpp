#include "commands/Commands.h"
#include "commands/DateOption.h"
#include "commands/FoodArgument.h"
#include "commands/LoggedLine.h"
#include "commands/MealOption.h"
#include "commands/Session.h"
#include "foods/Meals.h"
#include "foods/Quantity.h"
#include "foods/ScaledFood.h"
#include "intake/DayLog.h"
#include "model/Nutrients.h"
#include "records/RecordsChange.h"
#include "records/RecordsReading.h"
#include "runtime/Clock.h"
#include "runtime/Convert.h"

#include <QJsonObject>

namespace {
struct Wanted {
    FoodArgument food;
    std::string quantity = "1";
    std::string serving = "A";
    int meal = -1; ///< not said
    QDate day;     ///< null: today

    double Quantity() const { return NumberOrZero(QString::fromStdString(quantity)); }
    QString Serving() const { return QString::fromStdString(serving); }
};

/// As on the screen: the meal that is ticked there.
void Complete(Wanted& wanted) {
    if (wanted.meal < 0)
        wanted.meal = Meals::LastTicked().value_or(-1);
    if (wanted.day.isNull())
        wanted.day = Clock::Today();
}

QString Refusal(const Wanted& wanted) {
    if (const QString refusal = Quantity::LogRefusal(wanted.Quantity()); !refusal.isEmpty())
        return refusal;
    if (wanted.meal < 0)
        return QStringLiteral(
            "Please say for which meal: --meal Breakfast, Lunch, Dinner or Snacks.");
    return wanted.food.Refusal();
}

bool HasServing(const Food& food, const QString& serving) {
    return serving == u"A" || !food.ServB.toString().isEmpty();
}

/// Only reads: as long as it is not known which food is meant, nothing changes.
std::optional<Food> Choose(const Session& session, const Wanted& wanted) {
    const RecordsReading records(session.Records());
    session.ChooseProfile();
    return wanted.food.Choose(session);
}

LoggedFood LogFood(const Food& food, const Wanted& wanted) {
    const ScaledFood item =
        ScaledFood::Of(food.ID, wanted.Serving(), wanted.Quantity(), food.isRecipe);
    const qint32 key = DayLog::AddFood(item, Meals::NameOf(wanted.meal), wanted.day);
    return {key, item.Text(QStringLiteral("FOODNAME")), item.Text(QStringLiteral("SERVING")),
            wanted.Quantity(), item.Amount(QLatin1String(Info(Nutrient::Calories).logColumn))};
}

void Report(const Session& session, const LoggedFood& food, const Wanted& wanted) {
    const QString meal = Meals::NameOf(wanted.meal);
    const QString day = wanted.day.toString(Qt::ISODate);
    if (session.json)
        session.Print(
            QJsonObject{{"logged", LoggedLine::Facts(food)}, {"meal", meal}, {"date", day}});
    else
        session.Print("Logged for " + meal + " on " + day + ": " + LoggedLine::Text(food) + '.');
}

int Log(const Session& session, Wanted& wanted) {
    Complete(wanted);
    if (const QString refusal = Refusal(wanted); !refusal.isEmpty())
        return session.Refuse(refusal);
    const std::optional<Food> food = Choose(session, wanted);
    if (!food)
        return Found;
    if (!HasServing(*food, wanted.Serving()))
        return session.Refuse(food->FoodName + " has no serving B.");
    RecordsChange change(session.Records(), "log " + food->FoodName);
    const LoggedFood logged = LogFood(*food, wanted);
    change.Commit();
    Report(session, logged, wanted);
    return Done;
}
} // namespace

void Commands::AddLog(const Command& program, Session& session) {
    const Command command = program.Add("log", "Logs a food or a recipe");
    const auto wanted = std::make_shared<Wanted>();
    wanted->food.AddTo(command);
    command.Take("--quantity,-q", wanted->quantity, "How many servings; otherwise 1");
    command.Take("--serving,-s", wanted->serving, "Serving A or B of the food; otherwise A")
        .OneOf({"A", "B"});
    MealOption::Add(command, "--meal,-m", wanted->meal,
                    "Breakfast, Lunch, Dinner or Snacks; otherwise the meal that the window had "
                    "ticked last");
    DateOption::Add(command, "--date,-d", wanted->day, "The day; otherwise today");
    command.Footer("Example: halvane-data log \"Butter, salted\" --serving B --meal Lunch");
    command.Does([&session, wanted] { return Log(session, *wanted); });
}
