#pragma once

#include <QRect>
#include <QString>

class PeriodFigures;
class QPainter;
struct NutrientFigure;

/// The picture of the bar chart of a period, without its header: a grid with percent bars, or the
/// values. It knows the place of each part. Places are pixels; rows count from 1.
class PeriodPicture {
public:
    static constexpr QSize UsualSize{738, 476};

    explicit PeriodPicture(QSize size);

    int HeadHeight() const; ///< that the header takes
    QRect NamePlace(int row) const;
    QPoint BarPlace(int row) const;
    QRect ValuesPlace() const; ///< all values stand on it, above the grid
    QRect ValuePlace(int row) const;
    int TextBottom() const; ///< of a name, from its top

    void PaintGround(QPainter& painter) const; ///< grid and frame
    void PaintBars(QPainter& painter, const PeriodFigures& figures) const;
    void PaintValues(QPainter& painter, const PeriodFigures& figures) const;
    // For a page, which has no header there.
    void PaintScale(QPainter& painter) const; ///< the percents over the lines of the grid
    void ClearHead(QPainter& painter) const;

    static double BarWidth(double partOfTarget); ///< in twips
    static QString ValueText(const NutrientFigure& figure);

private:
    int RowTop(int row) const; ///< in twips
    void PaintNames(QPainter& painter, const PeriodFigures& figures) const;

    QSize size_;
    int labelHeight_; ///< in twips
};
