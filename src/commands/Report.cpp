#include "commands/Command.h"
#include "commands/Commands.h"
#include "commands/PeriodOption.h"
#include "commands/Session.h"
#include "commands/Waiting.h"
#include "drawing/Style.h"
#include "records/OutputFile.h"
#include "records/RecordsReading.h"
#include "records/report/HtmlReport.h"
#include "records/report/PdfReport.h"
#include "records/report/ReportFigures.h"
#include "runtime/Clock.h"

#include <QBuffer>

namespace {
constexpr int UsualDays = 30;

struct Choice {
    std::string out;
    std::string paper = "a4";
    PeriodOption days;
};

bool EndsWith(const std::string& name, const char* ending) {
    return QString::fromStdString(name).endsWith(QLatin1String(ending), Qt::CaseInsensitive);
}

Period UsualPeriod() {
    return {Clock::Today().addDays(1 - UsualDays), Clock::Today()};
}

QByteArray Pdf(const ReportFigures& figures, const std::string& paper) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    PdfReport::Write(buffer, figures, paper == "letter" ? QPageSize::Letter : QPageSize::A4);
    return buffer.data();
}

int WriteReport(const Session& session, const Choice& choice, const Period& period) {
    const Waiting waiting(session, QStringLiteral("Drawing the report"));
    const RecordsReading records(session.Records());
    session.ChooseProfile();
    OutputFile file(QString::fromStdString(choice.out));
    UseStyleOnPaper();
    const ReportFigures figures = ReportFigures::Of(period);
    const QByteArray report =
        EndsWith(choice.out, ".pdf") ? Pdf(figures, choice.paper) : HtmlReport::Of(figures);
    file.Write({report.constData(), size_t(report.size())});
    file.Keep();
    return Done;
}

std::string NameProblem(const std::string& name) {
    const bool known = EndsWith(name, ".pdf") || EndsWith(name, ".html");
    return known ? "" : "The name of the report must end with .pdf or .html.";
}
} // namespace

void Commands::AddReport(const Command& program, Session& session) {
    const Command command = program.Add("report", "Writes a report for a doctor: PDF or HTML");
    const auto choice = std::make_shared<Choice>();
    command.Take("OUT", choice->out, "The file: its name ends with .pdf or .html")
        .Required()
        .Check(NameProblem);
    choice->days.AddTo(command, "report");
    command.Take("--paper", choice->paper, "The paper of a PDF file").OneOf({"a4", "letter"});
    command.Footer("Without --from and --to it covers the last 30 days.\n\n"
                   "Example: halvane-data report --from 2026-03-01 --to 2026-03-31 march.pdf");
    command.Does([&session, choice] {
        return WriteReport(session, *choice, choice->days.Chosen(UsualPeriod()));
    });
}
