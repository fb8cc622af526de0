#include "commands/Command.h"
#include "commands/Commands.h"
#include "commands/Session.h"
#include "commands/SnapshotFacts.h"
#include "records/Snapshots.h"

#include <QDir>
#include <QJsonArray>

namespace {
QJsonObject Facts(const Snapshots& snapshots) {
    QJsonArray all;
    for (const Snapshot& snapshot : snapshots.All()) {
        QJsonObject facts = SnapshotFacts::Json(snapshot);
        facts["number"] = all.size() + 1;
        all.append(facts);
    }
    return {{"place", snapshots.Place()}, {"snapshots", all}};
}

int PrintLines(const Session& session, const Snapshots& snapshots) {
    const QList<Snapshot> all = snapshots.All();
    session.Print((all.isEmpty() ? "There is no snapshot in " : "Snapshots in ") +
                  QDir::toNativeSeparators(snapshots.Place()) + u'.');
    for (qsizetype i = 0; i < all.size(); ++i)
        session.Print(SnapshotFacts::Line(int(i) + 1, all[i]));
    return Done;
}

int Backups(const Session& session) {
    const Snapshots snapshots(session.Records());
    if (!session.json)
        return PrintLines(session, snapshots);
    session.Print(Facts(snapshots));
    return Done;
}
} // namespace

void Commands::AddBackups(const Command& program, Session& session) {
    const Command command = program.Add(
        "backups", "Lists the snapshots, newest first: number, time, kind, size and contents");
    command.Footer("Example: halvane-data backups");
    command.Does([&session] { return Backups(session); });
}
