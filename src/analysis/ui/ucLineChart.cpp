#include "analysis/ui/ucLineChart.h"

#include "analysis/Period.h"
#include "analysis/WeightAxis.h"
#include "analysis/charts/WeightCurvePainting.h"
#include "analysis/ui/AxisLabel.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "runtime/AppState.h"
#include "runtime/Convert.h"
#include "runtime/Dates.h"
#include "toolkit/ucHeader.h"

#include <QLineEdit>
#include <QPainter>
#include <QShowEvent>

#include <algorithm>
#include <cmath>

namespace {

// Twips.
constexpr int SurfaceWidth = 10740;
constexpr int SurfaceHeight = 6000;

constexpr double TipReach = 8; ///< pixels around a point

} // namespace

ucLineChart::ucLineChart(QWidget* parent)
    : PeriodChart(parent) {
    setAccessibleName(QStringLiteral("Weights of the period"));
    SetSpokenValue([this] { return curve_.Summary(); });
    setAttribute(Qt::WA_OpaquePaintEvent);
    AddHeader();
    AddLabels();
    TrackParts();
    resize(sizeHint());
    PlaceAll();
}

void ucLineChart::AddHeader() {
    ucHeader1_ = new ucHeader(this);
    ucHeader1_->setObjectName(QStringLiteral("ucHeader1"));
    ucHeader1_->setFont(TheStyle().strong);
    ucHeader1_->SetCenterAlignText(false);
    ucHeader1_->SetCaption(QStringLiteral(" Weight (lbs)"));
}

void ucLineChart::AddLabels() {
    for (int i = 0; i < WeightAxis::LabelCount; ++i) {
        lblWeight_.push_back(new AxisLabel(WeightCurvePainting::WeightLabelPlace(i), this));
        lblWeight_.back()->setObjectName(QStringLiteral("lblWeight%1").arg(i));
    }
    for (int i = 0; i < DateAxis::LabelCount; ++i) {
        lblDate_.push_back(
            new AxisLabel(WeightCurvePainting::DateLabelPlace(DateAxis::Left, height()), this));
        lblDate_.back()->setObjectName(QStringLiteral("lblDate%1").arg(i));
        lblDate_.back()->hide();
    }
}

QSize ucLineChart::sizeHint() const {
    return {Twips::ToPixels(SurfaceWidth), Twips::ToPixels(SurfaceHeight)};
}

void ucLineChart::ReadPeriodFrom(const QLineEdit* txtStart, const QLineEdit* txtEnd) {
    txtStart_ = txtStart;
    txtEnd_ = txtEnd;
}

/// A window that comes back from being minimised reads nothing: nothing has changed.
void ucLineChart::showEvent(QShowEvent* event) {
    if (event->spontaneous() || !App().AppStarted || !txtStart_)
        return;
    const QDate start = ToDate(txtStart_->text());
    updateLineChart(start, ToDate(txtEnd_->text()));
}

/// If a query fails, the axes stay without a line.
void ucLineChart::updateLineChart(QDate startDate, QDate endDate) {
    const Period period{startDate, endDate};
    curve_ = curve_.AxesAlone();
    update();
    std::vector<WeightLog::Entry> entries = WeightLog::Entries(period);
    if (entries.empty())
        curve_.noData = true;
    else
        curve_ = WeightCurve::Of(std::move(entries), WeightLog::LeastAndGreatest(period));
    ShowLabels();
    TellValueChanged();
}

void ucLineChart::ClearLabels() {
    curve_.weights.clear();
    curve_.dates.clear();
    ShowLabels();
    update();
}

void ucLineChart::ShowLabels() {
    for (size_t i = 0; i < lblWeight_.size(); ++i)
        lblWeight_[i]->SetCaption(curve_.weights.empty() ? QString()
                                                         : QString::number(curve_.weights[i]));
    for (size_t i = 0; i < lblDate_.size(); ++i) {
        const auto date =
            std::ranges::find(curve_.dates, static_cast<int>(i), &DateAxis::Label::index);
        const bool isShown = date != curve_.dates.end();
        if (isShown) {
            lblDate_[i]->SetCaption(Dates::ShortText(date->day));
            lblDate_[i]->SetPlace(WeightCurvePainting::DateLabelPlace(date->left, height()));
        }
        lblDate_[i]->setVisible(isShown);
    }
}

void ucLineChart::Liner(std::vector<PlotPoint> points) {
    curve_.points = std::move(points);
    update();
}

QString ucLineChart::TipAt(QPoint place) const {
    QString tip;
    double nearest = TipReach;
    for (size_t i = 0; i < std::min(curve_.points.size(), curve_.entries.size()); ++i) {
        const PlotPoint& point = curve_.points[i];
        const double distance =
            std::hypot(Twips::ToPixels(point.x) - place.x(), Twips::ToPixels(point.y) - place.y());
        if (distance > nearest)
            continue;
        nearest = distance;
        const WeightLog::Entry& entry = curve_.entries[i];
        tip = Dates::ShortText(entry.day) + u": " + DecimalText(entry.weight) + u" lbs";
    }
    return tip;
}

void ucLineChart::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    WeightCurvePainting::Paint(painter, curve_, size());
}

void ucLineChart::resizeEvent(QResizeEvent*) {
    PlaceAll();
}

void ucLineChart::PlaceAll() {
    ucHeader1_->setGeometry(1, 1, width() - 2, TheStyle().headerHeight);
    ShowLabels();
}
