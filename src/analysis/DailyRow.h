#pragma once

#include "model/Nutrients.h"

#include <QString>

class ChartBar;
class ChartLabel;
class QWidget;

/// One nutrient of the daily panel: its name, and in the panel's views its bar and its value behind
/// a leader of points. The controls belong to the views; a row must not be moved or copied.
class DailyRow {
public:
    struct Views {
        QWidget* labels;
        QWidget* bars;
        QWidget* values;
    };

    DailyRow(int i, Nutrient nutrient, const Views& views);
    DailyRow(const DailyRow&) = delete;
    DailyRow& operator=(const DailyRow&) = delete;

    void Show(double value, double rdi);
    void ShowNothing();
    void SetLit(bool lit);
    void FitBar();   ///< to the present width of its view
    void FitValue(); ///< to its text

    Nutrient nutrient() const { return nutrient_; }
    ChartLabel* lbl() const { return lbl_; }
    ChartBar* imgBar() const { return imgBar_; }
    ChartLabel* lblVal() const { return lblVal_; }

    static double numFix(double value);
    /// In twips, for a view of that many pixels: 100 % is as wide as the grid draws it, and a bar
    /// ends 30 twips before the view's right edge however high the intake.
    static double barWidth(double value, double rdi, int viewWidth);
    static int Top(int i); ///< of row i, from 1, within its view; in pixels

private:
    void SetBar(double width);
    QString ValueText() const;
    QString Percent() const;
    QString SpokenValue() const;

    Nutrient nutrient_;
    ChartLabel* lbl_;
    ChartBar* imgBar_;
    ChartLabel* lblVal_;
    double value_ = 0;
    double rdi_ = 0;
};
