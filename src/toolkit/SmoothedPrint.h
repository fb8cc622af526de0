#pragma once

#include <QFont>
#include <QPointF>
#include <QString>

class QPainter;

/// Prints text with the font's smoothing on from platform family 2 up, plain below; size, weight
/// and style are the font's. `place` is the upper left corner of the text.
void SmoothedPrint(QPainter& painter, QPointF place, const QString& text, const QFont& font);

/// The font as the smoothed print uses it, for measuring.
QFont SmoothedFont(QFont font);

/// The font as it is where that text fits that width, else so much smaller that it fits.
QFont FittingFont(QFont font, const QString& text, double width);

/// The text as it is where it fits that width in that font, else cut with an ellipsis.
QString FittingText(const QString& text, const QFont& font, double width);
