#include "commands/Command.h"
#include "commands/Commands.h"
#include "commands/Progress.h"
#include "commands/SectionNames.h"
#include "commands/Session.h"
#include "records/OutputFile.h"
#include "records/document/DocumentFormat.h"
#include "records/document/DocumentSection.h"
#include "records/document/RecordsDocument.h"
#include "runtime/RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QJsonObject>

namespace {
/// A mistyped name must not cost a file that is something else.
void RequireNoOtherFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() == 0)
        return;
    const QByteArray begin = QByteArray("{\"format\":\"") + DocumentFormat::Name + '"';
    if (file.read(begin.size()) != begin)
        throw RuntimeError(ErrorNumber::FileAccess,
                           "The file " + QDir::toNativeSeparators(path) +
                               " is there already and is not an export. Choose another name.");
}

std::map<std::string, int> ExportTo(const Session& session, const DocumentWriter::Sink& sink) {
    Progress progress(session, QStringLiteral("Exporting"));
    return RecordsDocument::Export(session.Records(), sink,
                                   [&](qint64 done, qint64 total) { progress.Step(done, total); });
}

void Print(const Session& session, const QString& path, const std::map<std::string, int>& counts) {
    QJsonObject rows;
    QStringList parts;
    for (const DocumentSection* section : DocumentSections::Lists()) {
        const int count = counts.at(section->name);
        rows[QLatin1String(section->name)] = count;
        if (count > 0)
            parts << SectionNames::Counted(section->name, count);
    }
    if (session.json)
        return session.Print(QJsonObject{{"file", path}, {"exported", rows}});
    session.Print("Exported to " + path + ": " +
                  (parts.isEmpty() ? QStringLiteral("no records") : parts.join(", ")) + u'.');
}

int ExportToFile(const Session& session, const QString& path) {
    RequireNoOtherFile(path);
    OutputFile file(path);
    const auto counts = ExportTo(session, [&](std::string_view piece) { file.Write(piece); });
    file.Keep();
    Print(session, path, counts);
    return Done;
}

int ExportToOutput(const Session& session) {
    ExportTo(session, [&](std::string_view piece) { session.Write(piece); });
    session.Flush();
    return Done;
}
} // namespace

void Commands::AddExport(const Command& program, Session& session) {
    const Command command = program.Add("export", "Writes all records to one file");
    const auto file = std::make_shared<QString>();
    command.Take("FILE", *file, "The file to make; - for standard output").Required();
    command.Footer("The file holds profiles, own foods, recipes, log, weights and settings.\n"
                   "Example: halvane-data export my-records.json");
    command.Does([&session, file] {
        return *file == u"-" ? ExportToOutput(session) : ExportToFile(session, *file);
    });
}
