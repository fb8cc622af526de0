#pragma once

class QPainter;
class QSize;

/// The background of percent bars: a line every 10 % of the target, a dark one every 50 %. 100 % is
/// 1500 twips wide; 0 % is at Origin.
namespace PercentGrid {
inline constexpr int Origin = 60;    ///< twips
inline constexpr int Step = 150;     ///< twips between lines
inline constexpr int DarkStep = 750; ///< twips between dark lines

void Paint(QPainter& painter, QSize size); ///< from the painter's origin
} // namespace PercentGrid
