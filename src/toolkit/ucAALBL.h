#pragma once

#include "toolkit/DrawnControl.h"

/// A line of smoothed text that sizes itself to its caption. An empty caption has no width.
class ucAALBL : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(QFont Font READ font WRITE SetFont)
    Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE SetForeColor)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)

public:
    explicit ucAALBL(QWidget* parent = nullptr);

    QString Caption() const { return caption_; }
    void SetCaption(const QString& caption);
    void SetFont(const QFont& font);
    QColor BackColor() const { return backColor_; }
    /// White by default; an invalid colour leaves the ground as it is.
    void SetBackColor(const QColor& color);
    QColor ForeColor() const; ///< the palette's button text until one is set
    void SetForeColor(const QColor& color);
    QSize sizeHint() const final;
    QAccessible::Role AccessibleRole() const override { return QAccessible::StaticText; }

Q_SIGNALS:
    void MouseDown(int Button, int Shift, double X, double Y);
    void MouseUp(int Button, int Shift, double X, double Y);

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void changeEvent(QEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

private:
    void Fit();

    QString caption_;
    QSize textSize_;
    QColor backColor_;
    QColor foreColor_;
};
