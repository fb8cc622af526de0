#pragma once

#include "analysis/ui/ChartPiece.h"

/// What the charts of the report have in common. A chart is given dates and reads what it needs. It
/// raises MouseMove when the pointer moves over its background or over a part that does not keep
/// its moves.
class PeriodChart : public ChartPiece {
    Q_OBJECT

public:
    explicit PeriodChart(QWidget* parent = nullptr);

    QAccessible::Role SpokenRole() const override { return QAccessible::Chart; }
    /// The chart as on the screen, scaled to fit that place and centred in it.
    void PaintChart(QPainter& painter, const QRect& place);

Q_SIGNALS:
    void MouseMove();

protected:
    void mouseMoveEvent(QMouseEvent*) override;
    void TrackParts(); ///< parts report moves without a button, too
    static void KeepMoves(QWidget* part);
};
