#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class EnergyShares;
struct NutrientFigure;
struct WeightCurve;

/// The figures of a chart as a table, for who cannot see it. Its texts are made one by one when
/// they are asked for, from what it was made of: that must outlive it.
struct FigureTable {
    QStringList heads; ///< of the columns
    int rows = 0;
    std::function<QString(int row, int column)> text;

    static FigureTable Of(const std::vector<NutrientFigure>& figures);
    static FigureTable Of(const EnergyShares& shares); ///< empty where there are no sectors
    static FigureTable Of(const WeightCurve& curve);
};
