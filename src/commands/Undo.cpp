#include "records/Undo.h"

#include "commands/Command.h"
#include "commands/Commands.h"
#include "commands/Session.h"
#include "commands/SnapshotFacts.h"
#include "commands/Waiting.h"
#include "records/Snapshots.h"

namespace {
int TakeBack(const Session& session) {
    const Waiting waiting(session, QStringLiteral("Restoring"));
    const Undo::Result result = Undo::Last(session.Records());
    const int number = Snapshots(session.Records()).NumberOf(result.replaced);
    if (session.json)
        session.Print(QJsonObject{{"change", result.change},
                                  {"moment", result.moment.toString(Qt::ISODateWithMs)},
                                  {"replaced", SnapshotFacts::Json(result.replaced)}});
    else
        session.Print("Took back \"" + result.change + "\". `restore " + QString::number(number) +
                      "` brings it back.");
    return Done;
}
} // namespace

void Commands::AddUndo(const Command& program, Session& session) {
    const Command command = program.Add(
        "undo", "Takes the last change of a command back. Repeat it for the change before");
    command.Footer("Example: halvane-data undo");
    command.Does([&session] { return TakeBack(session); });
}
