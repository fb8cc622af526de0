#pragma once

#include "analysis/PeriodFigures.h"
#include "analysis/ui/ChartRow.h"
#include "analysis/ui/PeriodChart.h"
#include "model/Nuts.h"

#include <QDate>

#include <memory>
#include <vector>

class LoggedPeriod;
class PeriodPicture;
class ucHeader;
class ucStrip;
struct Period;

/// The intake of an average day of a period, as bars of percent of the targets or as a list of
/// values. The targets are those for the average weight of the period. Afterwards the user has the
/// present weight and its targets again, except if there was no food. An average is taken over the
/// days with food.
class ucBarChart : public PeriodChart {
    Q_OBJECT
    Q_PROPERTY(QString Mode READ Mode)

public:
    explicit ucBarChart(QWidget* parent = nullptr);
    ~ucBarChart() override;

    /// If the period has no weight, it fails with an invalid use of Null and changes nothing.
    void updateBars(LoggedPeriod& logged);
    void updateBars(QDate start, QDate end);
    void ClearBars();                      ///< the values stay
    void ClearFigures();                   ///< bars, values and the average weight
    void Toggle(int mode);                 ///< 0 bars, 1 values; any other does nothing
    QString Mode() const { return mode_; } ///< "BARS" or "VALS"
    void StoreMode() const;                ///< for a host that closes before its parts are deleted
    const Nuts& Sums() const { return sums_; }
    const PeriodFigures& Averages() const { return figures_; }
    qint32 AverageWeight() const { return averageWeight_; } ///< 0 before the first one

    /// Both replace the sum that they are given by the average of a day.
    QString numFix(double& value) const;
    static double barWidth(qint32 days, double& value, double rdi); ///< in twips

    FigureTable Figures() const override { return FigureTable::Of(figures_.Rows()); }
    QSize sizeHint() const final;

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void AddHead();
    void AddRows();
    void PlaceAll();
    void PlaceHead(int height);
    void PlaceRow(int i, const PeriodPicture& picture);
    void AdjustToAverageWeight(const Period& period);
    void ShowFigures();
    QString PercentCaption() const;

    Nuts sums_;
    PeriodFigures figures_; ///< empty after ClearBars
    QString mode_;
    qint32 days_ = 0;
    qint32 averageWeight_ = 0;
    ucHeader* header_;
    std::vector<ucStrip*> scale_;
    QWidget* picVals_;
    std::vector<std::unique_ptr<ChartRow>> rows_;
};
