#pragma once

#include "analysis/ui/ChartPiece.h"

#include <QRectF>

/// A label on an axis of the line chart, with its place in twips. The chart paints its text; the
/// label is what the pointer and assistive programs find there.
class AxisLabel : public ChartPiece {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(double Left READ Left)
    Q_PROPERTY(double Top READ Top)
    Q_PROPERTY(double Width READ Width)
    Q_PROPERTY(double Height READ Height)

public:
    AxisLabel(const QRectF& place, QWidget* parent);

    QString Caption() const { return caption_; }
    void SetCaption(const QString& caption) { caption_ = caption; }
    QString SpokenName() const override { return caption_; }
    void SetPlace(const QRectF& place);
    double Left() const { return place_.left(); }
    double Top() const { return place_.top(); }
    double Width() const { return place_.width(); }
    double Height() const { return place_.height(); }

private:
    QRectF place_;
    QString caption_;
};
