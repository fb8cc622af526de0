#pragma once

#include <QPointF>

class QColor;
class QFont;
class QPainter;
class QString;

/// A painter's surface in twips. Thin lines are one pixel; the widths of thick lines and points are
/// pixels. Both have round ends and stand in the middle of the pixel that a place falls on.
class TwipsSurface {
public:
    explicit TwipsSurface(QPainter& painter);

    void VerticalLine(double x, double top, double bottom, const QColor& colour);
    void HorizontalLine(double y, double left, double right, const QColor& colour);
    void ThickLine(QPointF from, QPointF to, const QColor& colour, int width);
    void ThickPoint(QPointF at, const QColor& colour, int width);
    /// On the chart's ground, so that no line crosses the text.
    void Print(QPointF place, const QString& text, const QFont& font, const QColor& colour);

private:
    QPointF Pixel(QPointF twips) const;

    QPainter& painter_;
    double ratio_; ///< twips a pixel
};
