#pragma once

#include <functional>

class QTimer;
class QWidget;

/// The timer `cleanUp` of a form. Every 250 milliseconds it calls `off` if the pointer is outside
/// the form; the form's edge counts as inside. A form has one such timer: a second call replaces
/// `off`.
QTimer* AddCleanUp(QWidget* form, std::function<void()> off);
