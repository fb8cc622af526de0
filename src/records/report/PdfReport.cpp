#include "records/report/PdfReport.h"

#include "drawing/Pages.h"
#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "records/report/AverageTable.h"
#include "records/report/LoggedDaysGrid.h"
#include "records/report/MealColumns.h"
#include "records/report/ReportCharts.h"
#include "records/report/ReportText.h"

#include <QPdfWriter>
#include <QtMath>

namespace {
constexpr int SideGap = 22; ///< between a chart and what stands beside it
constexpr int LineHeight = 15;
constexpr int NoteSpace = 5;
constexpr int HeadingRoom = 34;
constexpr int SwatchSize = 9;
constexpr int SwatchGap = 6;
constexpr int CaptionGap = 6;

/// Lines of a caption and a value beside a chart.
class SideLines {
public:
    SideLines(QPainter& painter, int left, int right, int top)
        : painter_(painter)
        , left_(left)
        , right_(right)
        , y_(top) {}

    void Heading(const QString& text) {
        Text(text, TheStyle().strong, TheStyle().heading, Qt::AlignLeft, 0);
        y_ += LineHeight + 2;
    }
    void Add(const ReportText::Line& line, int indent = 0) {
        const Style& style = TheStyle();
        const double caption = QFontMetricsF(style.small).horizontalAdvance(line.caption);
        Text(line.caption, style.small, style.quietInk, Qt::AlignLeft, indent);
        Text(line.value, style.small, style.ink, Qt::AlignRight,
             indent + qCeil(caption) + CaptionGap);
        y_ += LineHeight;
    }
    void AddWithSwatch(const ReportText::Line& line, const QColor& colour) {
        painter_.fillRect(left_, y_ + (LineHeight - SwatchSize) / 2, SwatchSize, SwatchSize,
                          colour);
        Add(line, SwatchSize + SwatchGap);
    }
    void Space(int height) { y_ += height; }

private:
    /// A text that is too wide is made smaller.
    void Text(const QString& text, const QFont& font, const QColor& ink, Qt::Alignment side,
              int indent) {
        const QRect place(left_ + indent, y_, right_ - left_ - indent, LineHeight);
        painter_.setFont(FittingFont(font, text, place.width()));
        painter_.setPen(ink);
        painter_.drawText(place, int(side | Qt::AlignVCenter), text);
    }

    QPainter& painter_;
    int left_, right_, y_;
};

void SetUp(QPdfWriter& writer, QPageSize::PageSizeId paper) {
    writer.setPageLayout({QPageSize(paper), QPageLayout::Portrait, QMarginsF()});
    writer.setResolution(Pages::DotsAnInch);
    writer.setTitle(QLatin1String(ReportText::Title));
    writer.setCreator(QStringLiteral("Halvane"));
}

void WriteHead(Pages& pages, const ReportFigures& figures) {
    const Style& style = TheStyle();
    pages.Line(ReportText::Title, style.cardTitle, style.heading);
    pages.Advance(NoteSpace);
    pages.Paragraph(ReportText::Person(figures.person), style.strong, style.ink);
    pages.Line(ReportText::Days(figures.period), style.text, style.ink);
}

void WriteLoggedDays(Pages& pages, const ReportFigures& figures) {
    pages.Heading(ReportText::LoggedDays);
    pages.Paragraph(ReportText::Logged(figures), TheStyle().small, TheStyle().ink);
    pages.Advance(NoteSpace);
    LoggedDaysGrid::Paint(pages, figures);
}

/// Pie, legend and the shares of the meals, beside the table.
void WriteEnergy(Pages& pages, const ReportFigures& figures, int left, int top) {
    QPainter& painter = pages.Painter();
    SideLines head(painter, left, pages.Width(), top);
    head.Heading(ReportText::Energy);
    if (figures.energy.What() != EnergyShares::Content::Sectors)
        return;
    const QSize pie = ReportCharts::PieSize();
    const int pieTop = top + LineHeight + NoteSpace;
    painter.save();
    painter.translate((left + pages.Width() - pie.width()) / 2.0, pieTop);
    ReportCharts::PaintPie(painter, figures.energy);
    painter.restore();
    SideLines lines(painter, left, pages.Width(), pieTop + pie.height() + NoteSpace);
    const auto colours = ReportCharts::PieColours();
    size_t part = 0;
    for (const ReportText::Line& line : ReportText::EnergyLines(figures))
        lines.AddWithSwatch(line, colours[part++]);
    lines.Space(NoteSpace);
    for (const ReportText::Line& line : ReportText::MealLines(figures))
        lines.Add(line);
}

void WriteAverages(Pages& pages, const ReportFigures& figures) {
    const QSize table = AverageTable::Size();
    pages.MakeRoom(HeadingRoom + table.height());
    pages.Heading(ReportText::AverageDay);
    const Style& style = TheStyle();
    pages.Paragraph(ReportText::Divisor(figures), style.small, style.ink);
    pages.Advance(NoteSpace);
    QPainter& painter = pages.Painter();
    painter.save();
    painter.translate(0, pages.Y());
    AverageTable::Paint(painter, figures);
    painter.restore();
    WriteEnergy(pages, figures, table.width() + SideGap, pages.Y());
    pages.Advance(table.height() + NoteSpace);
    pages.Paragraph(ReportText::Coverage(), style.small, style.quietInk);
}

void WriteWeightChart(Pages& pages, const WeightCurve& weights) {
    const QSize chart = ReportCharts::WeightSize(pages.Room());
    QPainter& painter = pages.Painter();
    painter.save();
    painter.translate(0, pages.Y());
    ReportCharts::PaintWeights(painter, weights, chart);
    painter.restore();
    const Style& style = TheStyle();
    SideLines lines(painter, chart.width() + SideGap, pages.Width(), pages.Y());
    lines.AddWithSwatch({ReportText::WeightOfDay, {}}, style.ln[3].colour);
    lines.AddWithSwatch({ReportText::MeanWeight, {}}, style.lineMean);
    lines.Space(NoteSpace);
    for (const ReportText::Line& line : ReportText::WeightLines(weights))
        lines.Add(line);
    pages.Advance(chart.height());
}

void WriteWeight(Pages& pages, const ReportFigures& figures) {
    if (figures.weights.entries.empty()) {
        pages.Heading(ReportText::Weight);
        return pages.Paragraph(ReportText::NoWeight, TheStyle().text, TheStyle().ink);
    }
    pages.MakeRoom(HeadingRoom + ReportCharts::WeightSize(0).height());
    pages.Heading(ReportText::Weight);
    WriteWeightChart(pages, figures.weights);
}

void WriteMeals(Pages& pages, const ReportFigures& figures) {
    pages.MakeRoom(pages.Height() / 3);
    pages.Heading(ReportText::Meals);
    MealColumns(pages).Write(figures);
}
} // namespace

void PdfReport::Write(QIODevice& file, const ReportFigures& figures, QPageSize::PageSizeId paper) {
    const QString who = figures.person.UserName + u", " + ReportText::Days(figures.period);
    QPdfWriter writer(&file);
    SetUp(writer, paper);
    Pages pages(writer, who);
    WriteHead(pages, figures);
    WriteLoggedDays(pages, figures);
    if (!figures.days.empty())
        WriteAverages(pages, figures);
    WriteWeight(pages, figures);
    if (!figures.days.empty())
        WriteMeals(pages, figures);
}
