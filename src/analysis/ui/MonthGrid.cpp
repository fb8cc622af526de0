#include "analysis/ui/MonthGrid.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "runtime/Dates.h"
#include "toolkit/PaintedPanel.h"
#include "toolkit/SpokenRole.h"

#include <QPainter>

namespace {

constexpr int HeadHeight = 22;   // pixels
constexpr double LineWidth = 15; // twips

} // namespace

/// The weekday over a column of days. The frame of the grid goes on beside the first and the last.
class WeekdayHead : public PaintedPanel {
public:
    using PaintedPanel::PaintedPanel;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), TheStyle().navigation);
        PrintCaption(painter, TheStyle().windowInk, (width() - TextWidth()) / 2);
        if (x() == 0)
            PaintEdge(painter, rect(), Qt::LeftEdge, TheStyle().frame);
        if (x() + width() >= parentWidget()->width())
            PaintEdge(painter, rect(), Qt::RightEdge, TheStyle().frame);
    }
};

MonthGrid::MonthGrid(QWidget* parent)
    : QWidget(parent) {
    SetSpokenRole(this, QAccessible::Grouping);
    setObjectName(QStringLiteral("picCalBG"));
    setMouseTracking(true);
    for (int column = 0; column < Columns; ++column) {
        auto* head = new WeekdayHead(this);
        head->setObjectName("ucDay" + QString::number(column));
        head->setFont(TheStyle().smallStrong);
        head->SetCaption(Dates::WeekdayName(column + 1).left(3));
        head->setAccessibleName(Dates::WeekdayName(column + 1));
        connect(head, &PaintedPanel::MouseMove, this, &MonthGrid::HeadMouseMove);
        ucDay_[column] = head;
    }
}

double MonthGrid::CellWidth() const {
    return double(Twips::FromPixels(width())) / Columns;
}

double MonthGrid::RowHeight() const {
    return double(Twips::FromPixels(height() - HeadHeight)) / Rows;
}

int MonthGrid::FirstTop() const {
    return Twips::FromPixels(HeadHeight + ucDay_[0]->y()) + int(LineWidth);
}

int MonthGrid::ColumnLine(int column) const {
    return qMin(Twips::ToPixels(CellWidth() * column), width() - Twips::ToPixels(LineWidth));
}

int MonthGrid::RowLine(int row) const {
    return qMin(HeadHeight + Twips::ToPixels(RowHeight() * row),
                height() - Twips::ToPixels(LineWidth));
}

QRect MonthGrid::SlotAt(int x, int y, int column, int row) const {
    const int line = Twips::ToPixels(LineWidth);
    const QPoint corner(qMax(Twips::ToPixels(x), ColumnLine(column) + line),
                        qMax(Twips::ToPixels(y), RowLine(row) + line));
    return {corner, QPoint(ColumnLine(column + 1) - 1, RowLine(row + 1) - 1)};
}

void MonthGrid::SetMonth(int firstColumn, int days) {
    firstUsed_ = firstColumn;
    endUsed_ = firstColumn + days;
    update();
}

/// Each head ends where the next one begins, so that rounding leaves no gap.
void MonthGrid::resizeEvent(QResizeEvent*) {
    for (int column = 0; column < Columns; ++column) {
        const int left = Twips::ToPixels(CellWidth() * column);
        const int right = Twips::ToPixels(CellWidth() * (column + 1));
        ucDay_[column]->setGeometry(left, 0, right - left, HeadHeight);
    }
}

void MonthGrid::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), TheStyle().paper);
    painter.fillRect(0, 0, width(), HeadHeight, TheStyle().navigation); // heads may lack a pixel
    PaintSlots(painter);
    PaintLines(painter);
}

void MonthGrid::PaintSlots(QPainter& painter) const {
    for (int slot = 0; slot < Columns * Rows; ++slot) {
        const int column = slot % Columns;
        const int row = slot / Columns;
        const QPoint corner(ColumnLine(column) + 1, RowLine(row) + 1);
        const QPoint end(ColumnLine(column + 1) - 1, RowLine(row + 1) - 1);
        if (slot < firstUsed_ || slot >= endUsed_)
            painter.fillRect(QRect(corner, end), TheStyle().canvas);
    }
}

void MonthGrid::PaintLines(QPainter& painter) const {
    const QColor& line = TheStyle().frame;
    const int thick = Twips::ToPixels(LineWidth);
    for (int column = 0; column <= Columns; ++column)
        PaintEdge(painter, QRect(ColumnLine(column), 0, thick, height()), Qt::LeftEdge, line);
    for (int row = 0; row <= Rows; ++row)
        PaintEdge(painter, QRect(0, RowLine(row), width(), thick), Qt::TopEdge, line);
    PaintFrame(painter, rect(), line);
}
