#pragma once

class QPoint;
class QString;
class QWidget;

/// Shows a tip of a text that somebody typed: it wraps, ends somewhere, and is never read as
/// markup. An empty text hides the tip.
void ShowPlainTip(const QPoint& globalPlace, const QString& text, QWidget* control);
