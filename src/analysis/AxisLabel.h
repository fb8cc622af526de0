#pragma once

#include "analysis/ChartPiece.h"

#include <QRectF>

/// A label on an axis of a drawn chart. It holds its place in twips and its text, and answers to
/// the pointer and to assistive programs; the chart prints it together with the axes.
class AxisLabel : public ChartPiece {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(double Left READ Left WRITE SetLeft)
    Q_PROPERTY(double Top READ Top WRITE SetTop)
    Q_PROPERTY(double Width READ Width)
    Q_PROPERTY(double Height READ Height)

public:
    AxisLabel(const QRectF& place, Qt::Alignment alignment, QWidget* parent);

    QString Caption() const { return caption_; }
    void SetCaption(const QString& caption) { caption_ = caption; }
    double Left() const { return place_.left(); }
    void SetLeft(double left);
    double Top() const { return place_.top(); }
    void SetTop(double top);
    double Width() const { return place_.width(); }
    double Height() const { return place_.height(); }
    QPointF Middle() const { return place_.center(); }

    QString SpokenName() const override { return caption_; }
    void Print(QPainter& painter) const; ///< on the chart's ground, so that no line crosses it

private:
    void Place();

    QRectF place_;
    Qt::Alignment alignment_;
    QString caption_;
};
