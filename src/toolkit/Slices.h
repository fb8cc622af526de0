#pragma once

#include "toolkit/Style.h"

#include <QPixmap>

class QPainter;
class QRect;

/// A face cut the way the drawn controls use it: a left cap, a middle column one pixel wide that is
/// stretched to any width, and a right cap. Faces are drawn once for each height and pixel ratio.
struct Slices {
    QPixmap left;
    QPixmap middle;
    QPixmap right;

    static const Slices& OfFace(const Style::ButtonFace& face, int cap, double radius, int height,
                                qreal ratio);
};

/// Stretches the first pixel column of `column` over `place`.
void StretchColumn(QPainter& painter, const QRect& place, const QPixmap& column);
