#pragma once

#include "analysis/NutrientFigure.h"

#include <QPoint>
#include <QRect>

#include <functional>
#include <vector>

class QPainter;

/// Paints the rows of a chart on any painter. Rows count from 1; places are pixels.
namespace FigureRows {
using Figures = std::vector<NutrientFigure>;

// Twips, below the top of a row's label.
inline constexpr int BarDrop = 45;
inline constexpr int ValueDrop = 15;

void PaintTexts(QPainter& painter, const Figures& figures, const std::function<QRect(int)>& place,
                const std::function<QString(const NutrientFigure&)>& text);
/// Widths are twips.
void PaintBars(QPainter& painter, const Figures& figures, const std::function<QPoint(int)>& place,
               const std::function<double(const NutrientFigure&)>& width);
} // namespace FigureRows
