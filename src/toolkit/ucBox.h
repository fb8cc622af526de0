#pragma once

#include "toolkit/DrawnControl.h"

class ucHeader;

/// A framed panel with a header. Inner() is the place for its contents. With an empty caption there
/// is no header, and Inner() takes its room.
class ucBox : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(QFont Font READ Font WRITE SetFont)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(double CurrentX MEMBER currentX_)
    Q_PROPERTY(double CurrentY MEMBER currentY_)

public:
    explicit ucBox(QWidget* parent = nullptr);
    explicit ucBox(const QString& caption, QWidget* parent = nullptr);

    QString Caption() const;
    void SetCaption(const QString& caption);
    QFont Font() const; ///< of the header
    void SetFont(const QFont& font);
    ucHeader* Header() const { return header_; }
    QAccessible::Role AccessibleRole() const override { return QAccessible::Grouping; }
    QRect Inner() const; ///< inside the frame, below the header

Q_SIGNALS:
    void InnerChanged(); ///< after a resize

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;

private:
    void DrawBorder(QPainter& painter) const;

    ucHeader* header_;
    double currentX_ = 0;
    double currentY_ = 0;
};
