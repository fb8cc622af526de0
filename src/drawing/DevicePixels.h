#pragma once

#include <QRect>
#include <QTransform>

class QColor;
class QPainter;

/// While it lives, its painter works in whole pixels of the device. At a scale of 125 % a pixel of
/// the layout is 1.25 pixels of the device. Each edge is rounded by itself, so neighbours meet, and
/// a line has the same width wherever it is.
class DevicePixels {
public:
    explicit DevicePixels(QPainter& painter);
    ~DevicePixels();
    DevicePixels(const DevicePixels&) = delete;
    DevicePixels& operator=(const DevicePixels&) = delete;

    QRect Of(const QRectF& place) const;
    /// The width of a line, at least 1. Rounded down: the room that a layout leaves for it is never
    /// less, wherever it is.
    int Line(double width = 1) const;
    double Ratio() const; ///< pixels of the device in one of the layout

private:
    QPainter& painter_;
    QTransform toDevice_;
    QRect shown_; ///< of a widget: what the platform lets it paint; may lack a pixel at its end
};

/// Fills the same pixels that a frame of `place` encloses.
void PaintArea(QPainter& painter, const QRect& place, const QColor& colour);

/// A frame just inside `place`.
void PaintFrame(QPainter& painter, const QRect& place, const QColor& colour, double radius = 0);

/// A line just inside that edge of `place`.
void PaintEdge(QPainter& painter, const QRect& place, Qt::Edge edge, const QColor& colour);
