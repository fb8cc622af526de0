#pragma once

#include "analysis/ui/ChartPiece.h"

/// What the charts of the report have in common. Each is given dates and reads what it needs.
/// Raises MouseMove for a move of the pointer over its background and over those of its parts that
/// let moves through.
class PeriodChart : public ChartPiece {
    Q_OBJECT

public:
    explicit PeriodChart(QWidget* parent = nullptr);

    QAccessible::Role SpokenRole() const override { return QAccessible::Chart; }
    /// The chart as it is on the screen, as large as that place allows, in its middle.
    void PaintChart(QPainter& painter, const QRect& place);

Q_SIGNALS:
    void MouseMove();

protected:
    void mouseMoveEvent(QMouseEvent*) override;
    void TrackParts(); ///< lets moves over the parts arrive
    static void KeepMoves(QWidget* part);
};
