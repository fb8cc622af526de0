#include "commands/Command.h"
#include "commands/Commands.h"
#include "commands/PeriodOption.h"
#include "commands/Session.h"
#include "commands/UsageError.h"
#include "records/OutputFile.h"
#include "records/RecordsReading.h"
#include "records/tables/TableKinds.h"
#include "records/tables/TableWriter.h"

#include <QFileInfo>

#include <set>

namespace {
/// What the command line asks for.
struct Choice {
    std::string table;
    std::string format;
    std::string out; ///< empty: standard output
    PeriodOption days;
};

template <class Row> std::vector<std::string> Names(std::span<const Row> rows) {
    std::vector<std::string> names;
    for (const Row& row : rows)
        names.emplace_back(row.name);
    return names;
}

/// Where no format is chosen, the ending of the file's name tells it.
const TableFormat& FormatOf(const Choice& choice, const Session& session) {
    if (!choice.format.empty())
        return TableFormat::Named(choice.format);
    if (session.json)
        return TableFormat::Named("json");
    const QString ending = QFileInfo(QString::fromStdString(choice.out)).suffix().toLower();
    for (const TableFormat& format : TableFormat::All())
        if (ending == QLatin1String(format.name))
            return format;
    return TableFormat::Named("csv");
}

void RequireSense(const Choice& choice, const Session& session) {
    if (!FormatOf(choice, session).isText && choice.out.empty())
        throw UsageError("--format", "A workbook needs a file: add --out FILE.xlsx.");
    if (!TableKind::Named(choice.table).hasDays && choice.days.IsGiven())
        throw UsageError("--from", "The rows of this table have no days: leave out --from and "
                                   "--to.");
}

void Write(const Choice& choice, const TableFormat& format, const Period& period,
           const TableWriter::Sink& sink) {
    const TableKind& kind = TableKind::Named(choice.table);
    const auto writer = format.make(QLatin1String(kind.title), sink);
    writer->Write(*kind.make(period));
}

int WriteTable(const Session& session, const Choice& choice, const Period& period) {
    const RecordsReading records(session.Records());
    session.ChooseProfile();
    const TableFormat& format = FormatOf(choice, session);
    if (choice.out.empty()) {
        Write(choice, format, period, [&session](std::string_view bytes) { session.Write(bytes); });
        session.Flush();
        return Done;
    }
    OutputFile file(QString::fromStdString(choice.out));
    Write(choice, format, period, [&file](std::string_view bytes) { file.Write(bytes); });
    file.Keep();
    return Done;
}
} // namespace

void Commands::AddTable(const Command& program, Session& session) {
    const Command command = program.Add("table", "Writes records as a table: CSV, workbook "
                                                 "or JSON");
    const auto choice = std::make_shared<Choice>();
    command.Take("TABLE", choice->table, "Which records").Required().OneOf(Names(TableKind::All()));
    choice->days.AddTo(command, "rows");
    command.Take("--format", choice->format, "The format; otherwise that of FILE, or csv")
        .OneOf(Names(TableFormat::All()));
    command.Take("--out", choice->out, "The file; otherwise standard output").Value("FILE");
    command.Footer("Amounts that are not known are left empty. The coverage of a total is the "
                   "share of the logged grams whose amount is known; own foods, recipes and "
                   "foods that are gone count as 100 grams a serving.\n\n"
                   "Example: halvane-data table days --from 2026-03-01 --to 2026-03-31 --out "
                   "march.xlsx");
    command.Does([&session, choice] {
        RequireSense(*choice, session);
        return WriteTable(session, *choice, choice->days.Chosen(TableKind::Always()));
    });
}
