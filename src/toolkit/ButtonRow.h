#pragma once

#include <QList>
#include <QRect>

class Dialog;
class ucButton;

/// Lays the buttons side by side into the lower right corner of a dialog's inner area, in their
/// order. Returns what is left of the area above them.
QRect LayButtonRow(const QRect& inner, const QList<ucButton*>& buttons);

/// A button of a dialog, with its name. The pointer over it puts the dialog's others out.
ucButton* MakeButton(Dialog* dialog, const QString& name, const QString& caption);
