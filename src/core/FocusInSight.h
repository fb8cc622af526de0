#pragma once

class QWidget;

/// Moves the frame if the screen is smaller and does not show the control that takes the focus. So
/// the keys reach all of the frame; the pointer reaches it by dragging the title.
namespace FocusInSight {
void AddTo(QWidget& frame);
}
