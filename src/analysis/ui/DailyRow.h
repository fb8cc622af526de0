#pragma once

#include "analysis/ui/ChartRow.h"

/// One nutrient of the daily panel.
class DailyRow : public ChartRow {
public:
    DailyRow(int i, const NutrientFigure& figure, const Views& views);

    void Show(const NutrientFigure& figure, int panelWidth);
    void ShowNothing(const NutrientFigure& figure); ///< of a day without data
    void SetLit(bool lit);
    void FitBar(int panelWidth);
    void FitValue(); ///< to its text

    /// In twips, on a panel of that many pixels: 100 % is as wide as the grid draws it. A bar is at
    /// most as long as the panel; its view cuts it off at the panel's right edge.
    static double barWidth(double value, double rdi, int panelWidth);
    static int Top(int i); ///< of row i, from 1, within its view; in pixels

private:
    void SetBar(double width);
    void Take(const NutrientFigure& figure);

    NutrientFigure shown_;
};
