#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>

class QPainter;
class QRectF;

/// The pictures of the program: SVG files in assets/, compiled in, sharp at any scale. A colour
/// "@paper" in a file is that of the style. Each is cached when it has been drawn once.
namespace Pictures {
/// The picture `name` ("trash" for trash.svg) at `size` logical pixels. Parts drawn in
/// `currentColor` get `tint`.
QPixmap Get(const QString& name, QSize size, const QColor& tint = {}, qreal ratio = 1.0);
void Paint(QPainter& painter, const QRectF& place, const QString& name, const QColor& tint = {});
/// Its SVG text, with the colours that it is drawn with.
QByteArray Source(const QString& name, const QColor& tint = {});
bool Exists(const QString& name);
} // namespace Pictures
