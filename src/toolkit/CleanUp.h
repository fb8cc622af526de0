#pragma once

#include <functional>

class QTimer;
class QWidget;

/// The timer `cleanUp` of a form: every 250 milliseconds, calls `off` where the pointer stands
/// outside the form. Positions on the form's edge count as inside. A form has one such timer: a
/// second call gives it another `off`.
QTimer* AddCleanUp(QWidget* form, std::function<void()> off);
