#pragma once

class QWidget;

/// Commits the text that is being typed in a field of that window, as if the user had left the
/// field.
void LeaveField(const QWidget* window);
