#pragma once

#include "analysis/ui/ChartLabel.h"

#include <QRectF>

/// A label on an axis of a drawn chart, with its place in twips. Lines of the chart do not cross
/// its text.
class AxisLabel : public ChartLabel {
    Q_OBJECT
    Q_PROPERTY(double Left READ Left WRITE SetLeft)
    Q_PROPERTY(double Top READ Top WRITE SetTop)
    Q_PROPERTY(double Width READ Width)
    Q_PROPERTY(double Height READ Height)

public:
    AxisLabel(const QRectF& place, Qt::Alignment alignment, QWidget* parent);

    double Left() const { return place_.left(); }
    void SetLeft(double left);
    double Top() const { return place_.top(); }
    void SetTop(double top);
    double Width() const { return place_.width(); }
    double Height() const { return place_.height(); }
    QPointF Middle() const { return place_.center(); }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    void Place();

    QRectF place_;
};
