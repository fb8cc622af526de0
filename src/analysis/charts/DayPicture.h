#pragma once

#include <QRect>
#include <QString>

class DayFigures;
class QPainter;
struct NutrientFigure;

/// The picture of a day's intake, without its header: the names of the nutrients, and beside them a
/// grid with percent bars, or the values. Places are pixels; rows count from 1.
class DayPicture {
public:
    static constexpr int NamesWidth = 124;
    static constexpr int RowHeight = 14;

    explicit DayPicture(int panelWidth); ///< of the panel that holds it

    QSize Size() const;
    static int Top(int row);
    static QRect NamePlace(int row);
    static QPoint BarPlace(int row);   ///< on the view beside the names
    static QPoint ValuePlace(int row); ///< on that view

    void PaintBars(QPainter& painter, const DayFigures& figures) const;
    void PaintValues(QPainter& painter, const DayFigures& figures) const;
    static constexpr int ScaleHeight = 14;
    void PaintScale(QPainter& painter) const; ///< for a page: the percents, above the bars

    /// In twips: 100 % is as wide as the grid draws it. A bar is at most as long as the panel; its
    /// view cuts it off at the panel's right edge.
    double BarWidth(double value, double rdi) const;
    static QString ValueText(const NutrientFigure& figure, bool hasData);

private:
    void PaintNames(QPainter& painter, const DayFigures& figures) const;
    QRect View() const;

    int panelWidth_;
};
