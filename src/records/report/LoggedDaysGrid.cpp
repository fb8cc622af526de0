#include "records/report/LoggedDaysGrid.h"

#include "drawing/Pages.h"
#include "drawing/Style.h"
#include "records/report/ReportText.h"
#include "runtime/Dates.h"

namespace {
constexpr int NameWidth = 108;
constexpr int LineHeight = 16;
constexpr int CellHeight = 13;
constexpr int CellGap = 1;
constexpr int MostDays = 31;

void PaintCell(QPainter& painter, const QRect& cell, int day, bool logged) {
    const Style& style = TheStyle();
    painter.setPen(style.rule);
    painter.setBrush(logged ? style.navigation : style.paper);
    painter.drawRect(cell);
    painter.setPen(logged ? style.navigationInk : style.quietInk);
    painter.drawText(cell, Qt::AlignCenter, QString::number(day));
}

void PaintMonth(Pages& pages, const ReportFigures& figures, QDate first, QDate last) {
    QPainter& painter = pages.Painter();
    painter.setFont(TheStyle().small);
    painter.setPen(TheStyle().ink);
    painter.drawText(QRect(0, pages.Y(), NameWidth, CellHeight), Qt::AlignLeft | Qt::AlignVCenter,
                     ReportText::Month(first));
    const int pitch = (pages.Width() - NameWidth) / MostDays;
    for (QDate day = first; day <= last; day = day.addDays(1)) {
        const int left = NameWidth + (day.day() - 1) * pitch;
        PaintCell(painter, {left, pages.Y(), pitch - CellGap - 1, CellHeight}, day.day(),
                  figures.IsLogged(day));
    }
    pages.Advance(LineHeight);
}
} // namespace

void LoggedDaysGrid::Paint(Pages& pages, const ReportFigures& figures) {
    const QDate end = figures.period.to;
    for (QDate first = figures.period.from; first <= end;) {
        const QDate last = qMin(Dates::LastOfMonth(first), end);
        pages.MakeRoom(LineHeight);
        PaintMonth(pages, figures, first, last);
        first = last.addDays(1);
    }
}
