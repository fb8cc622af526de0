#pragma once

#include <QPointF>

class QColor;
class QFont;
class QPainter;
class QString;

/// Lets a painter draw in twips. Thin lines are one pixel wide. The widths of thick lines and
/// points are in pixels; both have round ends and are centred in the pixel on which their place
/// lies.
class TwipsSurface {
public:
    explicit TwipsSurface(QPainter& painter);

    void VerticalLine(double x, double top, double bottom, const QColor& colour);
    void HorizontalLine(double y, double left, double right, const QColor& colour);
    void ThickLine(QPointF from, QPointF to, const QColor& colour, int width);
    void ThickPoint(QPointF at, const QColor& colour, int width);
    /// On a background of its own, so that no line crosses the text.
    void Print(QPointF place, const QString& text, const QFont& font, const QColor& colour);

private:
    QPointF Pixel(QPointF twips) const;

    QPainter& painter_;
    double ratio_; ///< twips to a pixel
};
