#include "commands/Command.h"
#include "commands/Commands.h"
#include "commands/ImportFrom.h"
#include "commands/Progress.h"
#include "commands/SectionNames.h"
#include "commands/Session.h"
#include "records/document/DocumentSection.h"
#include "records/document/RecordsDocument.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {
struct Options {
    QStringList files;
    RecordsDocument::ImportOptions document;
};

QJsonArray Sentences(const std::vector<QString>& sentences) {
    QJsonArray all;
    for (const QString& sentence : sentences)
        all.append(sentence);
    return all;
}

QJsonObject Facts(const ImportReport& report, bool dryRun) {
    QJsonObject added;
    QJsonObject there;
    for (const DocumentSection* section : DocumentSections::Lists()) {
        const ImportReport::Count count = report.CountOf(section->name);
        added[QLatin1String(section->name)] = count.added;
        there[QLatin1String(section->name)] = count.there;
    }
    return {{"added", added},
            {"alreadyThere", there},
            {"kept", Sentences(report.kept)},
            {"refused", Sentences(report.refused)},
            {"settingsTaken", report.settings},
            {"dryRun", dryRun}};
}

void Print(const Session& session, const ImportReport& report, bool dryRun) {
    for (const DocumentSection* section : DocumentSections::Lists()) {
        const ImportReport::Count count = report.CountOf(section->name);
        if (count.added + count.there > 0)
            session.Print(SectionNames::Counted(section->name, count.added) +
                          QLatin1String(dryRun ? " would be added, " : " added, ") +
                          QString::number(count.there) + " there already");
    }
    for (const auto* sentences : {&report.kept, &report.refused})
        for (const QString& sentence : *sentences)
            session.Print(sentence);
    if (report.settings)
        session.Print(QLatin1String(dryRun ? "The settings would be those of the file."
                                           : "The settings are now those of the file."));
}

int ImportDocument(const Session& session, const Options& options) {
    Progress progress(session, QStringLiteral("Importing"));
    const ImportReport report =
        RecordsDocument::Import(session.Records(), options.files.front(), options.document,
                                [&](qint64 done, qint64 total) { progress.Step(done, total); });
    const bool dryRun = options.document.dryRun;
    session.json ? session.Print(Facts(report, dryRun)) : Print(session, report, dryRun);
    return report.kept.empty() && report.refused.empty() ? Done : Found;
}

int Import(const Session& session, const Options& options, const PeerImport::Options& foreign) {
    if (!foreign.from.isEmpty())
        return ImportFrom::Run(session, foreign, options.files, options.document.dryRun);
    if (options.files.size() > 1)
        return session.Refuse(QStringLiteral("Please name one file that export has made."));
    return ImportDocument(session, options);
}
} // namespace

void Commands::AddImport(const Command& program, Session& session) {
    const Command command = program.Add("import", "Brings in records from a file");
    const auto options = std::make_shared<Options>();
    command
        .Take("FILE", options->files,
              "A file that export has made; with --from, files "
              "of another program")
        .Required();
    command.Flag("--settings", options->document.settings,
                 "Take the settings of the file, too; without profiles here they are taken "
                 "in any case");
    command.Flag("--dry-run", options->document.dryRun,
                 "Tell what would happen, and change nothing");
    const auto foreign = ImportFrom::AddOptions(command);
    command.Footer("What is there already is not added again, and never changes.\n"
                   "Example: halvane-data import my-records.json\n"
                   "Example: halvane-data import --from cronometer --dry-run export.zip");
    command.Does([&session, options, foreign] { return Import(session, *options, *foreign); });
}
