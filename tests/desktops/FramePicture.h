#pragma once

#include <QImage>
#include <QRect>

/// The program's frame in the light style, in a picture of a screen: a compositor tells nobody
/// where a window is.
namespace FramePicture {
/// Null while it is not seen whole. The pointer may cover a part of it.
QRect Find(const QImage& screen, QSize frame);
} // namespace FramePicture
