#pragma once

#include "drawing/Style.h"

#include <QPixmap>

class QPainter;
class QRect;

/// A control's face in three slices: left cap, a one-pixel middle column that is stretched, right
/// cap. Each face is drawn once for each height and pixel ratio.
struct Slices {
    QPixmap left;
    QPixmap middle;
    QPixmap right;

    static const Slices& OfFace(const Style::ButtonFace& face, int cap, double radius, int height,
                                qreal ratio);
};

/// Stretches the first pixel column of `column` over `place`.
void StretchColumn(QPainter& painter, const QRect& place, const QPixmap& column);
