#include "records/report/MealColumns.h"

#include "drawing/Pages.h"
#include "drawing/Style.h"
#include "records/report/ReportText.h"

namespace {
constexpr int ColumnCount = 2;
constexpr int ColumnGap = 24;
constexpr double Points = 7;
constexpr int DayHeight = 15;
constexpr int DaySpace = 5;      ///< above a day
constexpr int LinesWithADay = 2; ///< that follow its heading in the same column

/// The lists are long: a month of them should fit on three pages.
QFont Tiny(QFont font) {
    font.setPointSizeF(Points);
    return font;
}

void LayOut(QTextLayout& layout, double width) {
    double y = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, y});
        y += line.height();
    }
    layout.endLayout();
}

/// A word that is longer than a line is broken.
QTextOption Wrapping() {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

QTextLayout::FormatRange Strong(qsizetype length) {
    QTextLayout::FormatRange range;
    range.start = 0;
    range.length = int(length);
    range.format.setFont(Tiny(TheStyle().smallStrong));
    return range;
}
} // namespace

MealColumns::MealColumns(Pages& pages)
    : pages_(pages)
    , width_((pages.Width() - ColumnGap) / double(ColumnCount))
    , top_(pages.Y())
    , y_(top_) {}

double MealColumns::Left() const {
    return column_ * (width_ + ColumnGap);
}

void MealColumns::MakeRoom(double height) {
    if (y_ + height <= pages_.Height())
        return;
    if (++column_ == ColumnCount) {
        pages_.Begin();
        column_ = 0;
        top_ = 0;
    }
    y_ = top_;
}

void MealColumns::Write(const ReportFigures& figures) {
    for (const ReportFigures::Day& day : figures.days) {
        WriteDay(ReportText::Day(day.day), ReportText::Calories(day.Calories()));
        for (const ReportFigures::Meal& meal : day.meals)
            WriteMeal(meal.name + u", " + ReportText::Calories(meal.calories),
                      ReportText::Foods(meal));
    }
}

void MealColumns::WriteDay(const QString& day, const QString& calories) {
    const Style& style = TheStyle();
    const double line = QFontMetricsF(Tiny(style.small)).lineSpacing();
    MakeRoom(DaySpace + DayHeight + LinesWithADay * line);
    if (y_ > top_)
        y_ += DaySpace;
    QPainter& painter = pages_.Painter();
    const QRectF place(Left(), y_, width_, DayHeight - 2);
    painter.setFont(style.smallStrong);
    painter.setPen(style.headerInk);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, day);
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, calories);
    painter.fillRect(QRectF(Left(), place.bottom(), width_, 1), style.rule);
    y_ += DayHeight;
}

void MealColumns::WriteMeal(const QString& name, const QString& text) {
    QTextLayout layout(name + u": " + text, Tiny(TheStyle().small));
    layout.setFormats({Strong(name.size())});
    layout.setTextOption(Wrapping());
    LayOut(layout, width_);
    WriteLines(layout);
}

void MealColumns::WriteLines(const QTextLayout& layout) {
    pages_.Painter().setPen(TheStyle().ink);
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        MakeRoom(line.height());
        line.draw(&pages_.Painter(), QPointF(Left(), y_) - line.position());
        y_ += line.height();
    }
}
