#pragma once

#include <QWidget>

class WeekdayHead;

/// The background of a month, `picCalBG`: the weekday heads `ucDay0` to `ucDay6` and the lines
/// between the days. A column is a seventh of the width, a row a sixth of the height below the
/// heads. Places are in twips.
class MonthGrid : public QWidget {
    Q_OBJECT

public:
    static constexpr int Columns = 7;
    static constexpr int Rows = 6;

    explicit MonthGrid(QWidget* parent);

    double CellWidth() const;
    double RowHeight() const;
    int FirstTop() const; ///< of the cells of the first row
    /// The place of a cell that begins at (x, y), between the lines around it; in pixels.
    QRect SlotAt(int x, int y, int column, int row) const;
    /// Cells before the first and after the last day of the month are paler.
    void SetMonth(int firstColumn, int days);

Q_SIGNALS:
    void HeadMouseMove();

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    int ColumnLine(int column) const; ///< pixels
    int RowLine(int row) const;       ///< pixels
    void PaintSlots(QPainter& painter) const;
    void PaintLines(QPainter& painter) const;

    WeekdayHead* ucDay_[Columns];
    int firstUsed_ = 0;
    int endUsed_ = 0;
};
