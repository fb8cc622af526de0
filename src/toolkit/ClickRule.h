#pragma once

class QMouseEvent;
class QWidget;

/// What counts as a click: the left button goes down on a control and comes up on it, out to its
/// outermost pixels. What the control shows in between, and whether it moves or grows, does not
/// matter. Each control that can be clicked owns one.
class ClickRule {
public:
    void Begin(const QMouseEvent* press);
    bool Ends(const QMouseEvent* release, const QWidget* control); ///< true once a press

private:
    bool begun_ = false;
};
