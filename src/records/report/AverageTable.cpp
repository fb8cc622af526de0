#include "records/report/AverageTable.h"

#include "analysis/charts/ChartText.h"
#include "analysis/charts/FigureRows.h"
#include "analysis/charts/PercentGrid.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "records/report/ReportText.h"

#include <QPainter>

#include <algorithm>

namespace {
constexpr int RowHeight = 14;
constexpr int HeadHeight = 16;
constexpr int BarsWidth = 140;
constexpr int Gap = 8; ///< between two columns
constexpr int TwipsOfTarget = 1500;

struct Column {
    int width;
    Qt::Alignment alignment;
};
constexpr std::array<Column, ReportText::AverageHead.size()> Columns{{{120, Qt::AlignLeft},
                                                                      {68, Qt::AlignRight},
                                                                      {70, Qt::AlignRight},
                                                                      {44, Qt::AlignRight},
                                                                      {58, Qt::AlignRight}}};
constexpr size_t ColumnAfterBars = 3;

int Left(size_t column) {
    int left = column >= ColumnAfterBars ? BarsWidth + Gap : 0;
    for (size_t i = 0; i < column; ++i)
        left += Columns[i].width;
    return left;
}

template <class Texts> void PaintTexts(QPainter& painter, int top, int height, const Texts& texts) {
    for (size_t i = 0; i < Columns.size(); ++i)
        PaintChartText(painter, QRect(Left(i), top, Columns[i].width, height), texts[i],
                       Columns[i].alignment | Qt::AlignVCenter);
}

double BarTwips(const NutrientFigure& figure) {
    const int most = Twips::FromPixels(BarsWidth) - PercentGrid::Origin;
    return qBound(0.0, TwipsOfTarget * figure.Part(), double(most));
}

/// Without a target there is no bar.
NutrientFigure ForBar(NutrientFigure figure) {
    if (figure.target == 0)
        figure.value = 0;
    return figure;
}

void PaintBars(QPainter& painter, const ReportFigures& figures) {
    FigureRows::Figures rows;
    for (const ReportFigures::Average& row : figures.averages)
        rows.push_back(ForBar(row.figure));
    painter.save();
    painter.translate(Left(ColumnAfterBars - 1) + Columns[ColumnAfterBars - 1].width + Gap,
                      HeadHeight);
    PercentGrid::Paint(painter, {BarsWidth, RowHeight * int(rows.size())});
    const auto place = [](int row) {
        return QPoint(Twips::ToPixels(PercentGrid::Origin),
                      (row - 1) * RowHeight + Twips::ToPixels(FigureRows::BarDrop));
    };
    FigureRows::PaintBars(painter, rows, place, BarTwips);
    painter.restore();
}
} // namespace

QSize AverageTable::Size() {
    return {Left(Columns.size() - 1) + Columns.back().width,
            HeadHeight + RowHeight * NutrientCount};
}

void AverageTable::Paint(QPainter& painter, const ReportFigures& figures) {
    std::array<QString, ReportText::AverageHead.size()> head;
    std::ranges::copy(ReportText::AverageHead, head.begin());
    PaintTexts(painter, 0, HeadHeight, head);
    PaintBars(painter, figures);
    int top = HeadHeight;
    for (const ReportFigures::Average& row : figures.averages) {
        PaintTexts(painter, top, RowHeight, ReportText::AverageRow(row));
        top += RowHeight;
    }
}
