#pragma once

class QString;
class QWidget;

// They tell assistive tools that the name, the value or the state of a control has changed.
void TellNameChanged(QWidget* control);
void TellValueChanged(QWidget* control, int value);
void TellDescriptionChanged(QWidget* control);
void TellTextChanged(QWidget* control, const QString& text);
void TellChecked(QWidget* control);
void TellExpanded(QWidget* control);
/// The part of a list or a menu that the next key works on; the list keeps the focus.
void TellCurrent(QWidget* part);
/// A screen reader reads the control's text now.
void TellAloud(QWidget* control);
