#pragma once

class QWidget;

/// Centres a window over its owner's window, or as near to that as the screen shows all of it.
/// Without an owner: on the screen.
void CentreWindow(QWidget* window);
