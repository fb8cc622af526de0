#pragma once

#include "analysis/ui/PeriodChart.h"

#include <QDate>

#include <optional>

class EnergyShares;
class LoggedPeriod;
class Nuts;
class PieChart;
class ucBox;

/// Where the calories of an average day of a period came from, as a pie.
class ucPieChart : public PeriodChart {
    Q_OBJECT

public:
    explicit ucPieChart(QWidget* parent = nullptr); ///< with three equal sectors

    void updatePie(LoggedPeriod& logged);
    void updatePie(QDate start, QDate end); ///< alone: reads only the four sums that it needs
    void AddOverLay();
    FigureTable Figures() const override;
    const EnergyShares& Energy() const;

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void Show(const std::optional<Nuts>& average);

    ucBox* box_;
    PieChart* pie_;
};
