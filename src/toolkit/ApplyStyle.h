#pragma once

class QApplication;

/// Sets the application's palette and font, and the look of stock fields, check boxes, tips and
/// calendars.
void ApplyStyle(QApplication& application);
