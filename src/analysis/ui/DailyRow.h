#pragma once

#include "analysis/ui/ChartRow.h"

/// One nutrient of the daily panel.
class DailyRow : public ChartRow {
public:
    DailyRow(int i, Nutrient nutrient, const Views& views);

    void Show(double value, double rdi, int panelWidth);
    void ShowNothing();
    void SetLit(bool lit);
    void FitBar(int panelWidth);
    void FitValue(); ///< to its text

    /// In twips, on a panel of that many pixels: 100 % is as wide as the grid draws it. A bar is as
    /// long as the panel at most; what reaches over its view, and with it over the panel's right
    /// edge, is cut off there.
    static double barWidth(double value, double rdi, int panelWidth);
    static int Top(int i); ///< of row i, from 1, within its view; in pixels

private:
    void SetBar(double width);

    double value_ = 0;
    double rdi_ = 0;
};
