#pragma once

#include "analysis/WeightCurve.h"
#include "analysis/ui/PeriodChart.h"

#include <vector>

class AxisLabel;
class QLineEdit;
class ucHeader;

/// The user's weights of a period as a line over a date axis and a weight axis. A period without an
/// entry brings up a notice; the labels keep what they showed until they are cleared. Raises
/// MouseMove from its background, labels and header.
class ucLineChart : public PeriodChart {
    Q_OBJECT

public:
    explicit ucLineChart(QWidget* parent = nullptr);

    /// Names the fields that hold the period. They are read each time the control is shown; a text
    /// that is not a date then fails with a type mismatch (13).
    void ReadPeriodFrom(const QLineEdit* txtStart, const QLineEdit* txtEnd);
    void updateLineChart(QDate startDate, QDate endDate);
    void Liner(std::vector<PlotPoint> points); ///< draws the line through these points
    void ClearLabels();                        ///< of both axes

    const std::vector<PlotPoint>& Points() const { return curve_.points; }
    const WeightCurve& Curve() const { return curve_; }
    FigureTable Figures() const override { return FigureTable::Of(curve_); }
    QString TipAt(QPoint place) const override; ///< day and weight of the nearest point
    QSize sizeHint() const final;

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void showEvent(QShowEvent*) override;

private:
    void AddHeader();
    void AddLabels();
    void PlaceAll();
    void ShowLabels();

    ucHeader* ucHeader1_;
    std::vector<AxisLabel*> lblWeight_, lblDate_;
    const QLineEdit* txtStart_ = nullptr;
    const QLineEdit* txtEnd_ = nullptr;
    WeightCurve curve_;
};
