#pragma once

#include "analysis/EnergyShares.h"
#include "analysis/Period.h"
#include "analysis/PeriodFigures.h"
#include "analysis/WeightCurve.h"

#include <functional>

class Pages;
class QPainter;

/// The report of a period on paper: all four views of it, as the screen shows them.
class PeriodPages {
public:
    Period period;
    qint32 averageWeight = 0; ///< pounds; 0 if there is none
    PeriodFigures averages;
    EnergyShares energy;
    WeightCurve weights;

    QString Days() const; ///< "11/15/2026 to 11/21/2026"
    void Paint(Pages& pages) const;

private:
    void PaintHead(Pages& pages) const;
    void PaintAverages(Pages& pages, const char* heading,
                       const std::function<void(QPainter&)>& paint) const;
    void PaintBars(Pages& pages) const;
    void PaintValues(Pages& pages) const;
    void PaintWeights(Pages& pages) const;
};
