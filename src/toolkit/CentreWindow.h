#pragma once

class QWidget;

/// Centres a window over its owner's window. Without an owner: on the screen.
void CentreWindow(QWidget* window);
