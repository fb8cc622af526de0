#pragma once

class QString;
class QWidget;

/// Gives the drawn controls their accessible interfaces. Can be called any number of times.
void InstallAccessible();

/// Tells assistive tools that the control's name, value or state has changed.
void TellNameChanged(QWidget* control);
void TellValueChanged(QWidget* control, int value);
void TellTextChanged(QWidget* control, const QString& text);
void TellChecked(QWidget* control);
void TellExpanded(QWidget* control);
