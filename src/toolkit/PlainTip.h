#pragma once

class QPoint;
class QString;
class QWidget;

/// Shows a text that somebody typed as a tip: wrapped, cut after 500 characters, never read as
/// markup. An empty text hides the tip.
void ShowPlainTip(const QPoint& globalPlace, const QString& text, QWidget* control);
