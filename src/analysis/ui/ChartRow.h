#pragma once

#include "analysis/NutrientFigure.h"

#include <optional>

class ChartBar;
class ChartLabel;
class LedLabel;
class QWidget;

/// The controls of one nutrient: its name, its bar of percent, and its value behind a leader of
/// points. They belong to the views; a row must not be moved or copied.
class ChartRow {
public:
    struct Views {
        QWidget* labels;
        QWidget* bars;
        QWidget* values;
    };

    ChartRow(int i, Nutrient nutrient, const Views& views);
    ChartRow(const ChartRow&) = delete;
    ChartRow& operator=(const ChartRow&) = delete;

    /// Assistive programs read the amount and its percent of the target.
    void SetFigure(const std::optional<NutrientFigure>& figure);

    bool BarIsNarrow() const;
    ChartLabel* lbl() const { return lbl_; }
    ChartBar* imgBar() const { return imgBar_; }
    LedLabel* lblVal() const { return lblVal_; }

private:
    ChartLabel* lbl_;
    ChartBar* imgBar_;
    LedLabel* lblVal_;
    std::optional<NutrientFigure> figure_;
};
