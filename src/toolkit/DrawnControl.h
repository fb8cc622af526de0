#pragma once

#include <QAccessible>
#include <QWidget>

/// What all drawn controls share: the click and mouse-move events, the test whether a place counts
/// as inside, and the focus ring, which is shown unless the mouse brought the focus.
class DrawnControl : public QWidget {
    Q_OBJECT

public:
    explicit DrawnControl(QWidget* parent = nullptr);

    bool FocusShown() const { return focusShown_; }
    /// Above 0 and below the size: places on the upper and left edge do not count.
    bool IsInside(QPointF place) const;
    /// What a press from the keyboard or an assistive tool does.
    virtual void Activate() { Q_EMIT Click(); }
    /// What assistive tools take it for.
    virtual QAccessible::Role AccessibleRole() const { return QAccessible::Client; }

Q_SIGNALS:
    void Click();
    void MouseMove(int Button, int Shift, double X, double Y); ///< X and Y in twips

protected:
    void focusInEvent(QFocusEvent*) override;
    void focusOutEvent(QFocusEvent*) override;

    void RaiseMouseMove(const QMouseEvent* event);
    void BeginClick(const QMouseEvent* press);
    bool EndsClick(const QMouseEvent* release);   ///< the left button, let go where it was pressed
    static int ShiftOf(const QMouseEvent* event); ///< 1 shift, 2 control, 4 alt
    static bool IsPressKey(const QKeyEvent* event); ///< Space or Return, not from holding it down

private:
    bool focusShown_ = false;
    bool focusFromMouse_ = false;
    bool clickBegun_ = false;
};

/// The ring that shows the focus.
void PaintFocusRing(QPainter& painter, const QRectF& place, double radius);
