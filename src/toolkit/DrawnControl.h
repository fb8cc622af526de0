#pragma once

#include "toolkit/ClickRule.h"

#include <QAccessible>
#include <QWidget>

/// What all drawn controls share: the click and mouse-move events, the test whether a place counts
/// as inside for the look, and the focus ring, which is shown unless the mouse brought the focus.
class DrawnControl : public QWidget {
    Q_OBJECT

public:
    explicit DrawnControl(QWidget* parent = nullptr);

    bool FocusShown() const { return focusShown_; }
    /// Decides the look alone: places on the upper and left edge do not count. A click has a rule
    /// of its own.
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
    void BeginClick(const QMouseEvent* press) { click_.Begin(press); }
    bool EndsClick(const QMouseEvent* release) { return click_.Ends(release, this); }
    static QPoint PixelOf(const QMouseEvent* event); ///< the one that the pointer is on
    static int ShiftOf(const QMouseEvent* event);    ///< 1 shift, 2 control, 4 alt
    static bool IsPressKey(const QKeyEvent* event);  ///< Space or Return, not from holding it down

private:
    bool focusShown_ = false;
    bool focusFromMouse_ = false;
    ClickRule click_;
};

/// The ring that shows the focus.
void PaintFocusRing(QPainter& painter, const QRectF& place, double radius);
