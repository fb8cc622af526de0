#pragma once

#include <QList>
#include <QRect>

class Dialog;
class ucButton;

/// Lays the buttons side by side in the lower right corner of a dialog's inner area. Returns the
/// area above them.
QRect LayButtonRow(const QRect& inner, const QList<ucButton*>& buttons);

/// A named button of a dialog. When the pointer enters it, the other buttons lose their highlight.
ucButton* MakeButton(Dialog* dialog, const QString& name, const QString& caption);
