#pragma once

class frmHOME;

/// Ctrl with plus, minus and 0 choose the size of the whole window, from any screen. A note in the
/// band of the menu bar tells the size of the next start.
namespace ScaleKeys {
void AddTo(frmHOME& frame);
}
