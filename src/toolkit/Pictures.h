#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>

class QPainter;
class QRectF;

/// The pictures of the program: SVG files of assets/, compiled in, sharp at any scale and kept once
/// drawn.
namespace Pictures {
/// The picture of that file name without ending ("trash"), drawn at `size` logical pixels.
/// Pictures drawn in `currentColor` take `tint`.
QPixmap Get(const QString& name, QSize size, const QColor& tint = {}, qreal ratio = 1.0);
void Paint(QPainter& painter, const QRectF& place, const QString& name, const QColor& tint = {});
bool Exists(const QString& name);
} // namespace Pictures
