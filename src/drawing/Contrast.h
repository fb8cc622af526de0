#pragma once

class QColor;

/// The contrast of two colours, by their luminance: 1 if they are equally light, 21 for black and
/// white. Text needs 4.5, a picture or an edge that must be seen 3.
double Contrast(const QColor& one, const QColor& other);
