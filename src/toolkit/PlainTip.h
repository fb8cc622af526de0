#pragma once

class QHelpEvent;
class QPoint;
class QString;
class QWidget;

/// Shows a text that somebody typed as a tip: wrapped if it is long, cut after 500 characters,
/// never read as markup. An empty text hides the tip.
void ShowPlainTip(const QPoint& globalPlace, const QString& text, QWidget* control);
/// The answer to a request for a tip. Without a text the control below it is asked.
void ShowPlainTip(QHelpEvent& asked, const QString& text, QWidget* control);
