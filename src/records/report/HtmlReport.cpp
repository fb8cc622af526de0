#include "records/report/HtmlReport.h"

#include "drawing/Style.h"
#include "records/report/ReportCharts.h"
#include "records/report/ReportText.h"
#include "runtime/Dates.h"

namespace {
constexpr int WeightHeight = 240;
constexpr double WidestBar = 200; ///< percent; a longer one is cut

/// `%name` stands for a colour of the program.
constexpr auto Sheet = R"(
@page { margin: 14mm; }
* { box-sizing: border-box; print-color-adjust: exact; -webkit-print-color-adjust: exact; }
body { font: 10pt/1.35 Inter, "Segoe UI", "Noto Sans", sans-serif; color: %ink; max-width: 190mm;
  margin: 8mm auto; padding: 0 4mm; font-variant-numeric: tabular-nums; }
h1 { font-size: 17pt; color: %heading; margin: 0 0 2mm; }
h2 { font-size: 12pt; color: %heading; border-bottom: 1px solid %edge; margin: 6mm 0 2mm;
  break-after: avoid; }
h3 { font-size: 9.5pt; color: %headerInk; border-bottom: 1px solid %rule; margin: 2.5mm 0 .5mm;
  display: flex; justify-content: space-between; break-after: avoid; }
p { margin: 0 0 1.5mm; }
.who { font-weight: 600; }
.note { font-size: 8pt; color: %quiet; }
table { border-collapse: collapse; font-size: 8.5pt; }
td, th { padding: 0 1.5mm; text-align: right; font-weight: normal; white-space: nowrap; }
th { color: %quiet; }
tbody th { text-align: left; color: %ink; }
.days td { border: 1px solid %rule; text-align: center; width: 5mm; padding: 0; color: %quiet; }
.days td.logged { background: %logged; color: %loggedInk; }
.days td.outside { border: none; }
.side p { font-size: 8.5pt; padding: 0 1.5mm; }
.side { display: flex; gap: 8mm; flex-wrap: wrap; align-items: flex-start; break-inside: avoid; }
.scale { width: 40mm; padding: 0; }
.bar { height: 2.2mm; background: %bar; }
.facts th { text-align: left; color: %quiet; }
.swatch { display: inline-block; width: 2.5mm; height: 2.5mm; margin-right: 1.5mm; }
.meals { columns: 2; column-gap: 8mm; font-size: 8pt; }
.meals p { margin: 0; orphans: 2; widows: 2; overflow-wrap: anywhere; }
img { display: block; max-width: 100%; }
@media print { body { margin: 0; padding: 0; max-width: none; } .days { font-size: 7pt; } }
)";

struct SheetColour {
    const char* name;
    QColor Style::*colour;
};
/// Longer names come first, because a shorter one may be their beginning.
constexpr SheetColour SheetColours[] = {
    {"%headerInk", &Style::headerInk},
    {"%heading", &Style::heading},
    {"%loggedInk", &Style::navigationInk},
    {"%logged", &Style::navigation},
    {"%quiet", &Style::quietInk},
    {"%edge", &Style::headerEdge},
    {"%rule", &Style::rule},
    {"%ink", &Style::ink},
};

QString SheetText() {
    QString text = QLatin1String(Sheet);
    for (const SheetColour& colour : SheetColours)
        text.replace(QLatin1String(colour.name), (TheStyle().*colour.colour).name());
    return text.replace(QLatin1String("%bar"), TheStyle().barNormal[3].name());
}

QString Element(const char* name, const QString& inner, const QString& attributes = {}) {
    const QString tag = QLatin1String(name);
    return u'<' + tag + (attributes.isEmpty() ? u"" : u" ") + attributes + u'>' + inner + u"</" +
           tag + u">\n";
}

QString Text(const char* name, const QString& text, const QString& attributes = {}) {
    return Element(name, text.toHtmlEscaped(), attributes);
}

QString Picture(const QByteArray& png, QSize size, const QString& description) {
    return QStringLiteral("<img src=\"data:image/png;base64,%1\" width=\"%2\" height=\"%3\" "
                          "alt=\"%4\">\n")
        .arg(QString::fromLatin1(png.toBase64()), QString::number(size.width()),
             QString::number(size.height()), description.toHtmlEscaped());
}

QString Class(const char* name) {
    return QLatin1String("class=\"") + QLatin1String(name) + u'"';
}

QString Swatch(const QColor& colour) {
    return QStringLiteral("<span class=\"swatch\" style=\"background:%1\"></span>")
        .arg(colour.name());
}

QString Fact(const ReportText::Line& line, const QString& swatch = {}) {
    return Element("tr",
                   Element("th", swatch + line.caption.toHtmlEscaped()) + Text("td", line.value));
}

QString DayCell(const ReportFigures& figures, QDate day) {
    const bool inside = day >= figures.period.from && day <= figures.period.to;
    const char* kind = inside ? (figures.IsLogged(day) ? "logged" : "") : "outside";
    return Text("td", inside ? QString::number(day.day()) : QString(), Class(kind));
}

QString MonthRow(const ReportFigures& figures, QDate first) {
    QString cells = Text("th", ReportText::Month(first));
    for (QDate day = first; day <= Dates::LastOfMonth(first); day = day.addDays(1))
        cells += DayCell(figures, day);
    return Element("tr", cells);
}

QString LoggedDays(const ReportFigures& figures) {
    QString rows;
    QDate first(figures.period.from.year(), figures.period.from.month(), 1);
    for (; first <= figures.period.to; first = Dates::AddMonths(first, 1))
        rows += MonthRow(figures, first);
    return Text("h2", ReportText::LoggedDays) + Text("p", ReportText::Logged(figures)) +
           Element("table", Element("tbody", rows), Class("days"));
}

QString AverageHead() {
    QString cells;
    for (const char* text : ReportText::AverageHead)
        cells += Text("th", QLatin1String(text));
    return Element("thead", Element("tr", cells + Text("th", QStringLiteral("0 to 200%"))));
}

QString AverageRow(const ReportFigures::Average& row) {
    const auto texts = ReportText::AverageRow(row);
    QString cells = Text("th", texts.front());
    for (size_t i = 1; i < texts.size(); ++i)
        cells += Text("td", texts[i]);
    const double percent = row.figure.target == 0 ? 0 : row.figure.Part() * 100;
    const double width = qBound(0.0, percent, WidestBar) / WidestBar * 100;
    const QString bar = Element(
        "div", {},
        QStringLiteral("class=\"bar\" style=\"width:%1%\"").arg(QString::number(width, 'f', 1)));
    return Element("tr", cells + Element("td", bar, Class("scale")));
}

QString Energy(const ReportFigures& figures) {
    if (figures.energy.What() != EnergyShares::Content::Sectors)
        return {};
    QString facts;
    const auto colours = ReportCharts::PieColours();
    size_t part = 0;
    for (const ReportText::Line& line : ReportText::EnergyLines(figures))
        facts += Fact(line, Swatch(colours[part++]));
    for (const ReportText::Line& line : ReportText::MealLines(figures))
        facts += Fact(line);
    const QString pie = Picture(ReportCharts::PiePicture(figures.energy), ReportCharts::PieSize(),
                                figures.energy.Summary());
    return Text("h2", ReportText::Energy) +
           Element("div", pie + Element("table", facts, Class("facts")), Class("side"));
}

QString Averages(const ReportFigures& figures) {
    if (figures.days.empty())
        return {};
    QString rows;
    for (const ReportFigures::Average& row : figures.averages)
        rows += AverageRow(row);
    return Text("h2", ReportText::AverageDay) + Text("p", ReportText::Divisor(figures)) +
           Element("table", AverageHead() + Element("tbody", rows)) +
           Text("p", ReportText::Coverage(), Class("note")) + Energy(figures);
}

QString Weight(const ReportFigures& figures) {
    const QString head = Text("h2", ReportText::Weight);
    if (figures.weights.entries.empty())
        return head + Text("p", ReportText::NoWeight);
    const QString legend =
        Element("p", Swatch(TheStyle().ln[3].colour) + QLatin1String(ReportText::WeightOfDay)) +
        Element("p", Swatch(TheStyle().lineMean) + QLatin1String(ReportText::MeanWeight));
    QString facts;
    for (const ReportText::Line& line : ReportText::WeightLines(figures.weights))
        facts += Fact(line);
    const QString chart =
        Picture(ReportCharts::WeightPicture(figures.weights),
                ReportCharts::WeightSize(WeightHeight), figures.weights.Summary());
    const QString beside = Element("div", legend + Element("table", facts, Class("facts")));
    return head + Element("div", chart + beside, Class("side"));
}

QString Meal(const ReportFigures::Meal& meal) {
    const QString name = meal.name + u", " + ReportText::Calories(meal.calories);
    return Element("p", Element("b", name.toHtmlEscaped() + u':').trimmed() + u' ' +
                            ReportText::Foods(meal).toHtmlEscaped());
}

QString Day(const ReportFigures::Day& day) {
    QString text = Element("h3", Text("span", ReportText::Day(day.day)) +
                                     Text("span", ReportText::Calories(day.Calories())));
    for (const ReportFigures::Meal& meal : day.meals)
        text += Meal(meal);
    return text;
}

QString Meals(const ReportFigures& figures) {
    if (figures.days.empty())
        return {};
    QString days;
    for (const ReportFigures::Day& day : figures.days)
        days += Day(day);
    return Text("h2", ReportText::Meals) + Element("div", days, Class("meals"));
}

QString Head(const ReportFigures& figures) {
    const QString title = ReportText::Title + QStringLiteral(": ") + figures.person.UserName +
                          u", " + ReportText::Days(figures.period);
    return Element("head", u"<meta charset=\"utf-8\">\n" + Text("title", title) +
                               Element("style", SheetText()));
}
} // namespace

QByteArray HtmlReport::Of(const ReportFigures& figures) {
    const QString body = Text("h1", ReportText::Title) +
                         Text("p", ReportText::Person(figures.person), Class("who")) +
                         Text("p", ReportText::Days(figures.period)) + LoggedDays(figures) +
                         Averages(figures) + Weight(figures) + Meals(figures);
    const QString page =
        Element("html", Head(figures) + Element("body", body), QStringLiteral("lang=\"en\""));
    return ("<!DOCTYPE html>\n" + page).toUtf8();
}
