#pragma once

#include "toolkit/DrawnControl.h"

/// What the painted panels share: a caption that repaints on setting, smoothed print, a click
/// event.
class PaintedPanel : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)

public:
    explicit PaintedPanel(QWidget* parent = nullptr);

    QString Caption() const { return caption_; }
    virtual void SetCaption(const QString& caption);
    QAccessible::Role AccessibleRole() const override { return QAccessible::StaticText; }

protected:
    /// Stretches the one-pixel column of a ground from `from` down to `to` over the whole panel.
    void PaintGround(QPainter& painter, const QColor& from, const QColor& to) const;
    /// The smoothed print of the caption; y is the place that centres it where none is given.
    void PrintCaption(QPainter& painter, const QColor& ink, double x) const;
    void PrintCaption(QPainter& painter, const QColor& ink, QPointF place) const;
    double TextWidth() const;
    double TextHeight() const;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

private:
    QString caption_ = QStringLiteral("Custom");
};
