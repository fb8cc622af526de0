#pragma once

#include "analysis/DayFigures.h"

#include <QDate>

class Pages;

/// A day on paper: all its foods by meal, its weight, and its totals as bars, values and pie.
class DayPages {
public:
    DayPages(QDate day, DayFigures totals)
        : day_(day)
        , totals_(std::move(totals)) {}

    void Paint(Pages& pages) const;

private:
    void PaintHead(Pages& pages) const;
    void PaintMeal(Pages& pages, int meal) const;
    void PaintTotals(Pages& pages) const;

    QDate day_;
    DayFigures totals_;
};
