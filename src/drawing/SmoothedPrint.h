#pragma once

#include <QFont>
#include <QPointF>
#include <QString>

class QPainter;

/// Prints text, smoothed on platform family 2 and above. `place` is the upper left corner of the
/// text.
void SmoothedPrint(QPainter& painter, QPointF place, const QString& text, const QFont& font);

/// The font as the smoothed print uses it, for measuring.
QFont SmoothedFont(QFont font);

/// The font, made smaller if the text would be wider than `width`.
QFont FittingFont(QFont font, const QString& text, double width);

/// The text, cut with an ellipsis if it would be wider than `width`.
QString FittingText(const QString& text, const QFont& font, double width);
