#pragma once

#include <functional>

class QWidget;

/// Does what an assistive tool pressed, after the tool has got its answer: a press may open a
/// dialog. A dialog keeps the controls of the windows below it from being pressed. A press on a
/// control that is destroyed before is dropped.
void PressLater(QWidget* control, const std::function<void()>& press);
