#pragma once

#include "analysis/WeightLog.h"
#include "analysis/ui/PeriodChart.h"

#include <array>
#include <vector>

class AxisLabel;
class DateAxis;
class QLineEdit;
class TwipsSurface;
class WeightAxis;
class ucHeader;

/// A place on the line, in twips, and the weight that stands there.
struct PlotPoint {
    int x, y;
    qint32 weight;
};

/// The user's weights of a period as a line over a date axis and a weight axis. Both axes follow
/// from the entries, not from the period asked for. Without any entry a notice stands on the axes,
/// whose labels stay as they were until they are cleared. Raises MouseMove from its background,
/// labels and header.
class ucLineChart : public PeriodChart {
    Q_OBJECT

public:
    explicit ucLineChart(QWidget* parent = nullptr);

    /// The fields that hold the period. They are read each time the control is shown, and a text
    /// that is not a date fails there (13).
    void ReadPeriodFrom(const QLineEdit* txtStart, const QLineEdit* txtEnd);
    void updateLineChart(QDate startDate, QDate endDate);
    void Liner(std::vector<PlotPoint> points); ///< draws the line through these points
    void ClearLabels();                        ///< of both axes

    const std::vector<PlotPoint>& Points() const { return points_; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void showEvent(QShowEvent*) override;

private:
    void AddHeader();
    void AddLabels();
    void PlaceAll();
    void ShowDates(const DateAxis& axis);
    void ShowWeights(const WeightAxis& axis);
    std::vector<PlotPoint> Plotted(const DateAxis& dates, const WeightAxis& weights) const;

    void DrawAxes(TwipsSurface& surface) const;
    void DrawLine(TwipsSurface& surface) const;
    void PlotSegment(TwipsSurface& surface, QPoint from, QPoint to, int pass) const;
    QString Figures() const;

    ucHeader* ucHeader1_;
    std::array<AxisLabel*, 8> lblWeight_{};
    std::array<AxisLabel*, 5> lblDate_{};
    const QLineEdit* txtStart_ = nullptr;
    const QLineEdit* txtEnd_ = nullptr;
    std::vector<WeightLog::Entry> entries_;
    std::vector<PlotPoint> points_;
    bool noData_ = false; ///< the notice stands on the axes
};
