#include "commands/Command.h"
#include "commands/Commands.h"
#include "commands/Session.h"
#include "commands/Waiting.h"
#include "records/RecordsCheck.h"
#include "runtime/Clock.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {
QJsonArray Facts(const QList<Finding>& findings) {
    QJsonArray all;
    for (const Finding& finding : findings)
        all.append(QJsonObject{{"where", finding.where},
                               {"problem", finding.problem},
                               {"rows", finding.rows},
                               {"first", finding.first},
                               {"meaning", finding.meaning},
                               {"advice", finding.advice},
                               {"repairable", !finding.repair.isEmpty()}});
    return all;
}

void PrintLines(const Session& session, const RecordsCheck& check, const QList<Finding>& repaired) {
    for (const Finding& finding : repaired)
        session.Print("Repaired: " + finding.where + ": " + finding.problem + u'.');
    for (const Finding& finding : check.Findings())
        session.Print(finding.Line());
    if (check.Findings().isEmpty())
        session.Print("Both files are sound: " + check.Counts().Text() + u'.');
}

int Check(const Session& session, bool repair) {
    const QDate today = Clock::Today();
    const Waiting waiting(session, QStringLiteral("Checking"));
    RecordsCheck check(session.Records(), today);
    QList<Finding> repaired;
    if (repair)
        repaired = check.Repair();
    if (!repaired.isEmpty())
        check = RecordsCheck(session.Records(), today);
    if (session.json)
        session.Print(QJsonObject{{"sound", check.Findings().isEmpty()},
                                  {"counts", check.Counts().ToJson()},
                                  {"repaired", Facts(repaired)},
                                  {"findings", Facts(check.Findings())}});
    else
        PrintLines(session, check, repaired);
    return check.Findings().isEmpty() ? Done : Found;
}
} // namespace

void Commands::AddCheck(const Command& program, Session& session) {
    const Command command = program.Add(
        "check",
        "Checks both files, and prints a line for each fault: what is wrong, what it means "
        "and what to do. Ends with 1 if there is a fault");
    const auto repair = std::make_shared<bool>(false);
    command.Flag("--repair", *repair, "Repair what has only one right answer");
    command.Footer("Example: halvane-data check --repair");
    command.Does([&session, repair] { return Check(session, *repair); });
}
