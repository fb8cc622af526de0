#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class EnergyShares;
struct NutrientFigure;
struct WeightCurve;

/// The figures of a chart as a table, for people who cannot see the chart. Each text is made when
/// it is asked for, from the argument of `Of`, which must outlive the table.
struct FigureTable {
    QStringList heads; ///< of the columns
    int rows = 0;
    std::function<QString(int row, int column)> text;

    static FigureTable Of(const std::vector<NutrientFigure>& figures);
    static FigureTable Of(const EnergyShares& shares); ///< empty if there are no sectors
    static FigureTable Of(const WeightCurve& curve);
};
