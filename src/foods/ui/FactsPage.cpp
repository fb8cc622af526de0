#include "foods/ui/FactsPage.h"

#include "drawing/Pages.h"
#include "drawing/Style.h"

namespace {

constexpr int WidestTable = 440;
constexpr int RowHeight = 20;
constexpr int HeavyRule = 3;
constexpr int Space = 6;

int TableWidth(const Pages& pages) {
    return qMin(WidestTable, pages.Width());
}

void PaintCells(Pages& pages, const FactsPage::Row& row, const QFont& captionFont,
                const QFont& figureFont) {
    QPainter& painter = pages.Painter();
    const QRect line(0, pages.Y(), TableWidth(pages), RowHeight);
    painter.setPen(TheStyle().ink);
    painter.setFont(captionFont);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, row.caption);
    painter.setFont(figureFont);
    painter.drawText(line.adjusted(0, 0, -line.width() / 4, 0), Qt::AlignRight | Qt::AlignVCenter,
                     row.amount);
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, row.percent);
    pages.Advance(RowHeight);
}

void PaintRow(Pages& pages, const FactsPage::Row& row) {
    pages.MakeRoom(RowHeight + 1);
    PaintCells(pages, row, TheStyle().text, TheStyle().strong);
    pages.Rule(TableWidth(pages), 1, TheStyle().factsRule);
}

} // namespace

void FactsPage::Paint(Pages& pages) const {
    const Style& style = TheStyle();
    pages.Flow(food, style.cardTitle, style.heading);
    pages.Flow("Serving Size  " + serving, style.text, style.ink);
    pages.Advance(Space);
    pages.Rule(TableWidth(pages), HeavyRule, style.ink);
    PaintCells(pages, {QString(), QStringLiteral("Amount Per Serving"), "% Daily Value"},
               style.small, style.small);
    for (const Row& row : headlines)
        PaintRow(pages, row);
    pages.Rule(TableWidth(pages), HeavyRule, style.ink);
    for (const Row& row : others)
        PaintRow(pages, row);
}
