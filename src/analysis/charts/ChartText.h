#pragma once

#include <QString>

class QPainter;
class QRect;

/// Paints a line of chart text in its place. A text that is too wide is made smaller, then cut.
void PaintChartText(QPainter& painter, const QRect& place, const QString& text,
                    Qt::Alignment alignment);
