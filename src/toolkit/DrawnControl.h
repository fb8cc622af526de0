#pragma once

#include "toolkit/ClickRule.h"
#include "toolkit/SpokenControl.h"

/// Base of all drawn controls: the click and mouse-move events, the test for the hover look, and
/// the focus ring. The ring is hidden if the mouse gave the focus.
class DrawnControl : public SpokenControl {
    Q_OBJECT

public:
    explicit DrawnControl(QWidget* parent = nullptr);

    bool FocusShown() const { return focusShown_; }
    /// Decides the look only: the upper and the left edge do not count as inside. ClickRule decides
    /// about clicks.
    bool IsInside(QPointF place) const;
    void Activate() override { Q_EMIT Click(); }
    QAccessible::Role AccessibleRole() const override { return QAccessible::Client; }
    QAccessibleInterface* MakeAccessible() override;

Q_SIGNALS:
    void Click();
    void MouseMove(int Button, int Shift, double X, double Y); ///< X and Y in twips

protected:
    void focusInEvent(QFocusEvent*) override;
    void focusOutEvent(QFocusEvent*) override;

    void RaiseMouseMove(const QMouseEvent* event);
    void BeginClick(const QMouseEvent* press) { click_.Begin(press); }
    bool EndsClick(const QMouseEvent* release) { return click_.Ends(release, this); }
    static QPoint PixelOf(const QMouseEvent* event); ///< the pixel under the pointer
    static int ShiftOf(const QMouseEvent* event);    ///< 1 shift, 2 control, 4 alt
    static bool IsPressKey(const QKeyEvent* event);  ///< Space or Return, without key repeat

private:
    bool focusShown_ = false;
    bool focusFromMouse_ = false;
    ClickRule click_;
};

void PaintFocusRing(QPainter& painter, const QRectF& place, double radius);
