#pragma once

#include "analysis/ui/ChartRow.h"

class DayPicture;

/// One nutrient of the daily panel.
class DailyRow : public ChartRow {
public:
    DailyRow(int i, const NutrientFigure& figure, const Views& views);

    void Show(const NutrientFigure& figure, const QString& text, const DayPicture& picture);
    void SetLit(bool lit);
    void FitBar(const DayPicture& picture);
    void FitValue(); ///< to its text

private:
    void SetBar(double width);

    NutrientFigure shown_;
};
