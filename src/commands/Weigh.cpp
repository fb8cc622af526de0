#include "commands/Commands.h"
#include "commands/DateOption.h"
#include "commands/Session.h"
#include "intake/DayLog.h"
#include "model/User.h"
#include "records/RecordsChange.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Convert.h"
#include "runtime/StartSettings.h"

#include <QJsonObject>

namespace {
struct Weighing {
    std::string text;
    bool remove = false;
    QDate day; ///< null: today

    double Weight() const { return remove ? 0 : NumberOrZero(QString::fromStdString(text)); }
};

QString Refusal(const Weighing& weighing) {
    if (weighing.remove)
        return weighing.text.empty()
                   ? QString()
                   : QStringLiteral("Please give a weight, or --remove, and not both.");
    const QString refusal = DayLog::WeightRefusal(weighing.Weight());
    return refusal.isEmpty() ? refusal : refusal + " Here `weigh --remove` does that.";
}

void Report(const Session& session, const Weighing& weighing) {
    const QString day = weighing.day.toString(Qt::ISODate);
    const double target = User::Current().RDIs.Calories();
    if (session.json)
        return session.Print(
            QJsonObject{{"date", day},
                        {"weight", weighing.remove ? QJsonValue() : QJsonValue(weighing.Weight())},
                        {"targetCalories", target}});
    if (weighing.remove)
        session.Print("The weight on " + day + " is removed.");
    else
        session.Print("Weight on " + day + ": " + DecimalText(weighing.Weight()) + " pounds.");
    session.Print("The target is " + DecimalText(target) + " kcal a day.");
}

int Weigh(const Session& session, Weighing& weighing) {
    if (weighing.day.isNull())
        weighing.day = Clock::Today();
    if (const QString refusal = Refusal(weighing); !refusal.isEmpty())
        return session.Refuse(refusal);
    StartSettings::ReadRest(App().AppInfo);
    RecordsChange change(session.Records(), QStringLiteral("weigh"));
    session.ChooseProfile();
    DayLog::EnterWeight(weighing.day, weighing.Weight());
    change.Commit();
    Report(session, weighing);
    return Done;
}
} // namespace

void Commands::AddWeigh(const Command& program, Session& session) {
    const Command command = program.Add(
        "weigh", "Records a weight for a day and adapts the targets, as the day screen does");
    const auto weighing = std::make_shared<Weighing>();
    command.Take("WEIGHT", weighing->text, "In pounds");
    command.Flag("--remove", weighing->remove, "Remove the weight of that day");
    DateOption::Add(command, "--date,-d", weighing->day, "The day; otherwise today");
    command.Footer("Example: halvane-data weigh 150.5 --date yesterday");
    command.Does([&session, weighing] { return Weigh(session, *weighing); });
}
