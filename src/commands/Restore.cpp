#include "commands/Command.h"
#include "commands/Commands.h"
#include "commands/Session.h"
#include "commands/SnapshotFacts.h"
#include "commands/Waiting.h"
#include "records/Restoring.h"
#include "records/Snapshots.h"

namespace {
int Restore(const Session& session, const std::string& which) {
    const RecordsFolder records = session.Records();
    const Snapshot chosen = Snapshots(records).Find(QString::fromStdString(which));
    const Waiting waiting(session, QStringLiteral("Checking and restoring"));
    const Snapshot replaced =
        Restoring(records).Put(chosen, chosen.settings, "before restore of " + chosen.When());
    const int number = Snapshots(records).NumberOf(replaced);
    if (session.json)
        session.Print(QJsonObject{{"restored", SnapshotFacts::Json(chosen)},
                                  {"replaced", SnapshotFacts::Json(replaced)}});
    else
        session.Print("Brought back " + chosen.Title() + ": " + chosen.counts.Text() +
                      ".\nWhat it has replaced is kept. `restore " + QString::number(number) +
                      "` brings that back.");
    return Done;
}
} // namespace

void Commands::AddRestore(const Command& program, Session& session) {
    const Command command = program.Add(
        "restore", "Brings a snapshot back, and keeps what it replaces as another snapshot");
    const auto which = std::make_shared<std::string>();
    command.Take("WHICH", *which, "A number of the list that `backups` prints, a path, or `latest`")
        .Required();
    command.Footer("Example: halvane-data restore 2");
    command.Does([&session, which] { return Restore(session, *which); });
}
