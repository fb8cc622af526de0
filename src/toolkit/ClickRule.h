#pragma once

class QMouseEvent;
class QWidget;

/// Decides what counts as a click: the left button is pressed and released on the control, its
/// outermost pixels included. It does not matter whether the control changes its look, moves or
/// grows in between. Each control that can be clicked owns one.
class ClickRule {
public:
    void Begin(const QMouseEvent* press);
    bool Ends(const QMouseEvent* release,
              const QWidget* control); ///< true at most once for each press

private:
    bool begun_ = false;
};
