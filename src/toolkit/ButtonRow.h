#pragma once

#include <QList>
#include <QRect>

class QWidget;
class ucButton;

/// Lays the buttons side by side into the lower right corner of a dialog's inner area, in their
/// order. Returns what is left of the area above them.
QRect LayButtonRow(const QRect& inner, const QList<ucButton*>& buttons);

/// A button of a dialog, with its name.
ucButton* MakeButton(QWidget* dialog, const QString& name, const QString& caption);
