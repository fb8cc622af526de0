#pragma once

#include "analysis/ChartRow.h"

/// One nutrient of the daily panel.
class DailyRow : public ChartRow {
public:
    DailyRow(int i, Nutrient nutrient, const Views& views);

    void Show(double value, double rdi);
    void ShowNothing();
    void SetLit(bool lit);
    void FitBar();   ///< to the present width of its view
    void FitValue(); ///< to its text

    /// In twips, for a view of that many pixels: 100 % is as wide as the grid draws it, and a bar
    /// ends 30 twips before the view's right edge however high the intake.
    static double barWidth(double value, double rdi, int viewWidth);
    static int Top(int i); ///< of row i, from 1, within its view; in pixels

private:
    void SetBar(double width);

    double value_ = 0;
    double rdi_ = 0;
};
