#pragma once

#include <QAccessible>

class QWidget;

/// What assistive tools take a plain widget for: a window, a pane, a list. The first call comes
/// before the widget gets its name, because that tells the tools of it. A SpokenControl says its
/// role itself.
void SetSpokenRole(QWidget* widget, QAccessible::Role role);
