#pragma once

class QWidget;

/// Takes over what is being typed in a field of that window, as if the person had left it.
void LeaveField(const QWidget* window);
