#pragma once

#include "toolkit/DrawnControl.h"

/// Base of the painted panels: a caption that repaints when it is set, smoothed print, a click
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
    /// Fills the panel with a vertical gradient from `from` to `to`.
    void PaintGround(QPainter& painter, const QColor& from, const QColor& to) const;
    /// Prints the caption smoothed. Without `y` it is centred vertically.
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
