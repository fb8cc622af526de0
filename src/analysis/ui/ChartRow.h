#pragma once

#include "model/Nutrients.h"

#include <QString>

#include <optional>

class ChartBar;
class ChartLabel;
class LedLabel;
class QWidget;

/// One nutrient of a chart: its name, its bar of percent, and its value behind a leader of points.
/// The controls belong to the views; a row must not be moved or copied.
class ChartRow {
public:
    struct Views {
        QWidget* labels;
        QWidget* bars;
        QWidget* values;
    };

    // Twips, below the top of the row's label.
    static constexpr int BarDrop = 45;
    static constexpr int ValueDrop = 15;

    ChartRow(int i, Nutrient nutrient, const char* unit, const Views& views);
    ChartRow(const ChartRow&) = delete;
    ChartRow& operator=(const ChartRow&) = delete;

    /// What assistive programs are told: the value, and its percent of the target.
    void SetFigure(double value, double rdi);
    void ClearFigure();
    QString SpokenValue() const;

    bool BarIsNarrow() const; ///< too narrow to be shown
    Nutrient nutrient() const { return nutrient_; }
    ChartLabel* lbl() const { return lbl_; }
    ChartBar* imgBar() const { return imgBar_; }
    LedLabel* lblVal() const { return lblVal_; }

    /// Rounded as the charts write it: to two decimals below 100, whole from there.
    static double numFix(double value);
    static double PartOfTarget(double value, double rdi); ///< as if it were next to 0 where it is 0

private:
    struct Figure {
        double value, rdi;
    };
    QString SpokenPercent() const;

    Nutrient nutrient_;
    const char* unit_;
    ChartLabel* lbl_;
    ChartBar* imgBar_;
    LedLabel* lblVal_;
    std::optional<Figure> figure_;
};
