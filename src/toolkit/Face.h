#pragma once

#include "drawing/Style.h"

class QPainter;
class QRect;

/// The ground and the edge of a button, a header or another control. It is painted from three
/// slices: the left cap, a column of one pixel that is stretched, the right cap. They are drawn
/// once for each look, height and scale. A transparent edge is none.
void PaintFace(QPainter& painter, const QRect& place, const Style::ButtonFace& face,
               double radius = 0, int edgeWidth = 1);

/// The same for a ground without an edge.
void PaintGround(QPainter& painter, const QRect& place, const Style::Gradient& ground);
