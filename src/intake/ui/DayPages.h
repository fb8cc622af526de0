#pragma once

#include "analysis/DayFigures.h"

#include <QDate>

#include <vector>

class Pages;
struct LoggedFood;

/// A day on paper: all its foods by meal, its weight, and its totals as bars, values and pie.
class DayPages {
public:
    DayPages(QDate day, DayFigures totals)
        : day_(day)
        , totals_(std::move(totals)) {}

    void Paint(Pages& pages) const;

private:
    void PaintHead(Pages& pages) const;
    static void PaintMeal(Pages& pages, const QString& name, const std::vector<LoggedFood>& foods);
    void PaintTotals(Pages& pages) const;

    QDate day_;
    DayFigures totals_;
};
