#include "commands/Command.h"
#include "commands/Commands.h"
#include "commands/Session.h"
#include "commands/SnapshotFacts.h"
#include "commands/Waiting.h"
#include "records/SnapshotMaking.h"
#include "records/Snapshots.h"

#include <QDir>

namespace {
int Backup(const Session& session, const std::string& to) {
    const RecordsFolder records = session.Records();
    const QString place =
        to.empty() ? Snapshots(records).Place() : QDir(QString::fromStdString(to)).absolutePath();
    const Waiting waiting(session, QStringLiteral("Copying and checking"));
    const Snapshot made =
        SnapshotMaking(records, place).Make(SnapshotKind::Manual, QStringLiteral("backup"));
    if (session.json)
        session.Print(SnapshotFacts::Json(made));
    else
        session.Print("Kept in " + QDir::toNativeSeparators(made.path) + ": " + made.counts.Text() +
                      u'.');
    return Done;
}
} // namespace

void Commands::AddBackup(const Command& program, Session& session) {
    const Command command = program.Add(
        "backup", "Makes a snapshot of both files and the settings, also while the window is open, "
                  "and checks it");
    const auto to = std::make_shared<std::string>();
    command.Take("TO", *to,
                 "The folder in which to make it; otherwise that of the other snapshots");
    command.Footer("Example: halvane-data backup /media/stick");
    command.Does([&session, to] { return Backup(session, *to); });
}
