#pragma once

class QPainter;
class QRect;

/// A bar of a chart: a picture of 7 by 8 pixels, stretched to the bar's width. It is blue, and
/// brown while its row is highlighted.
namespace BarPainting {
inline constexpr int Height = 8; ///< pixels

constexpr bool IsNarrow(double twips) { ///< too narrow to be shown
    return twips <= 15;
}
void Paint(QPainter& painter, const QRect& place, bool hilited);
} // namespace BarPainting
