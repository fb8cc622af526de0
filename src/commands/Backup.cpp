#include "commands/Commands.h"
#include "commands/Session.h"
#include "commands/SnapshotFacts.h"
#include "commands/Waiting.h"
#include "records/SnapshotMaking.h"
#include "records/Snapshots.h"

#include <QDir>

#include <CLI/CLI.hpp>

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

void Commands::AddBackup(CLI::App& program, Session& session) {
    CLI::App* command = program.add_subcommand(
        "backup", "Makes a snapshot of both files and the settings, also while the window is open, "
                  "and checks it");
    const auto to = std::make_shared<std::string>();
    command->add_option("TO", *to,
                        "The folder in which to make it; otherwise that of the other snapshots");
    command->footer("Example: halvane-data backup /media/stick");
    command->callback(
        [&session, to] { session.Do([&session, to] { return Backup(session, *to); }); });
}
