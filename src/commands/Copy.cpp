#include "commands/Commands.h"
#include "commands/DateOption.h"
#include "commands/MealOption.h"
#include "commands/Session.h"
#include "intake/DayLog.h"
#include "records/RecordsChange.h"
#include "runtime/Clock.h"
#include "runtime/Counted.h"

#include <QJsonObject>

namespace {
struct Copying {
    QDate from;
    QDate to;      ///< null: today
    int meal = -1; ///< all
};

void Report(const Session& session, const Copying& copying, int count) {
    const QString from = copying.from.toString(Qt::ISODate);
    const QString to = copying.to.toString(Qt::ISODate);
    if (session.json)
        session.Print(QJsonObject{{"copied", count}, {"from", from}, {"to", to}});
    else if (count == 0)
        session.Print("Nothing to copy is logged on " + from + '.');
    else
        session.Print("Copied from " + from + " to " + to + ": " + Counted(count, "food", "foods") +
                      '.');
}

int Copy(const Session& session, Copying& copying) {
    if (copying.to.isNull())
        copying.to = Clock::Today();
    if (const QString refusal = DayLog::CopyRefusal(copying.from, copying.to); !refusal.isEmpty())
        return session.Refuse(refusal);
    RecordsChange change(session.Records(), copying.meal < 0 ? "copy-day" : "copy-meal");
    session.ChooseProfile();
    const auto meal = copying.meal < 0 ? std::nullopt : std::optional(copying.meal);
    const int count =
        int(DayLog::CopyFoods(LoggedEntries::Of(copying.from, meal), copying.to).size());
    if (count > 0)
        change.Commit();
    Report(session, copying, count);
    return count == 0 ? Found : Done;
}

void AddDays(const Command& command, Session& session, const std::shared_ptr<Copying>& copying) {
    DateOption::Add(command, "FROM", copying->from, "The day to copy").Required();
    DateOption::Add(command, "TO", copying->to, "The day that gets the copies; otherwise today");
    command.Does([&session, copying] { return Copy(session, *copying); });
}
} // namespace

void Commands::AddCopyDay(const Command& program, Session& session) {
    const Command command = program.Add("copy-day", "Logs all foods of a day for another day, too");
    AddDays(command, session, std::make_shared<Copying>());
    command.Footer("Example: halvane-data copy-day yesterday");
}

void Commands::AddCopyMeal(const Command& program, Session& session) {
    const Command command =
        program.Add("copy-meal", "Logs the foods of a meal for another day, too");
    const auto copying = std::make_shared<Copying>();
    MealOption::Add(command, "MEAL", copying->meal, "Breakfast, Lunch, Dinner or Snacks")
        .Required();
    AddDays(command, session, copying);
    command.Footer("Example: halvane-data copy-meal Breakfast yesterday today");
}
