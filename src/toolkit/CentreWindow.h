#pragma once

class QWidget;

/// Moves a window to the middle of its owner's window, or of the screen where it has none.
void CentreWindow(QWidget* window);
