#include "analysis/ui/ucLineChart.h"

#include "analysis/DateAxis.h"
#include "analysis/Period.h"
#include "analysis/WeightAxis.h"
#include "analysis/ui/AxisLabel.h"
#include "analysis/ui/TwipsSurface.h"
#include "runtime/AppState.h"
#include "runtime/Convert.h"
#include "runtime/Dates.h"
#include "runtime/Round.h"
#include "toolkit/Style.h"
#include "toolkit/Twips.h"
#include "toolkit/ucHeader.h"

#include <QLineEdit>
#include <QPainter>
#include <QShowEvent>

namespace {

// Twips.
constexpr int SurfaceWidth = 10740;
constexpr int SurfaceHeight = 6000;
constexpr int AxisTop = 150;
constexpr int Margin = 30; ///< between the lines and the right and lower edge
constexpr int WeightLabelLeft = 105;
constexpr int WeightLabelWidth = 780;
constexpr int GridLeft = DateAxis::Left + 15;
constexpr int DateLabelWidth = 990;
constexpr int DateLabelHeight = 240;
constexpr int DateLabelFoot = 390; ///< from a date label's upper edge to the lower edge
constexpr QPointF NoticePlace(3900, 2000);
constexpr QPoint HighlightShift(15, -15);

// Pens.
constexpr int FirstPass = 3;
constexpr int LastPass = 4;
constexpr int PointGrowth = 4; ///< a point is so many pixels wider than its line
constexpr int DotEdgeWidth = 3;
constexpr int DotCoreWidth = 2;

const QString NoData = QStringLiteral("No weight data To chart");

QString FigureText(const WeightLog::Entry& entry) {
    return Dates::ShortText(entry.day) + u' ' + DecimalText(entry.weight) + u" lbs";
}

} // namespace

ucLineChart::ucLineChart(QWidget* parent)
    : PeriodChart(parent) {
    setAccessibleName(QStringLiteral("Weights of the period"));
    SetSpokenValue([this] { return Figures(); });
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
        const QRectF place(WeightLabelLeft, WeightAxis::LabelTops[size_t(i)], WeightLabelWidth,
                           WeightAxis::LabelHeight);
        lblWeight_[size_t(i)] = new AxisLabel(place, Qt::AlignRight, this);
        lblWeight_[size_t(i)]->setObjectName(QStringLiteral("lblWeight%1").arg(i));
    }
    for (int i = 0; i < DateAxis::LabelCount; ++i) {
        const QRectF place(DateAxis::Left, 0, DateLabelWidth, DateLabelHeight);
        lblDate_[size_t(i)] = new AxisLabel(place, Qt::AlignHCenter, this);
        lblDate_[size_t(i)]->setObjectName(QStringLiteral("lblDate%1").arg(i));
        lblDate_[size_t(i)]->hide();
    }
}

QSize ucLineChart::sizeHint() const {
    return {Twips::ToPixels(SurfaceWidth), Twips::ToPixels(SurfaceHeight)};
}

void ucLineChart::ReadPeriodFrom(const QLineEdit* txtStart, const QLineEdit* txtEnd) {
    txtStart_ = txtStart;
    txtEnd_ = txtEnd;
}

/// A frame that comes back from being minimised does not count: nothing has changed.
void ucLineChart::showEvent(QShowEvent* event) {
    if (event->spontaneous() || !App().AppStarted || !txtStart_)
        return;
    const QDate start = ToDate(txtStart_->text());
    updateLineChart(start, ToDate(txtEnd_->text()));
}

void ucLineChart::updateLineChart(QDate startDate, QDate endDate) {
    const Period period{startDate, endDate};
    noData_ = false;
    entries_.clear();
    Liner({});
    entries_ = WeightLog::Entries(period);
    noData_ = entries_.empty();
    if (!noData_) {
        const DateAxis dates(entries_.front().day, entries_.back().day);
        ShowDates(dates);
        const auto [min, max] = WeightLog::LeastAndGreatest(period);
        const WeightAxis weights(min, max, dates.Days());
        ShowWeights(weights);
        Liner(Plotted(dates, weights));
    }
    TellValueChanged();
}

void ucLineChart::ClearLabels() {
    for (AxisLabel* label : lblWeight_)
        label->SetCaption(QString());
    for (AxisLabel* label : lblDate_)
        label->hide();
    update();
}

void ucLineChart::ShowDates(const DateAxis& axis) {
    std::array<bool, DateAxis::LabelCount> shown{};
    for (const DateAxis::Label& date : axis.Labels()) {
        AxisLabel* label = lblDate_[size_t(date.index)];
        label->SetCaption(Dates::ShortText(date.day));
        label->SetLeft(date.left);
        shown[size_t(date.index)] = true;
    }
    for (size_t i = 0; i < shown.size(); ++i)
        lblDate_[i]->setVisible(shown[i]);
}

void ucLineChart::ShowWeights(const WeightAxis& axis) {
    for (int i = 0; i < WeightAxis::LabelCount; ++i)
        lblWeight_[size_t(i)]->SetCaption(QString::number(axis.Label(i)));
}

std::vector<PlotPoint> ucLineChart::Plotted(const DateAxis& dates,
                                            const WeightAxis& weights) const {
    std::vector<PlotPoint> points;
    points.reserve(entries_.size());
    for (const WeightLog::Entry& entry : entries_)
        points.push_back({dates.X(entry.day, lblDate_[0]->Middle().x()), weights.Y(entry.weight),
                          Round(entry.weight)});
    return points;
}

void ucLineChart::Liner(std::vector<PlotPoint> points) {
    points_ = std::move(points);
    update();
}

void ucLineChart::DrawAxes(TwipsSurface& surface) const {
    const Style& style = TheStyle();
    const int right = Twips::FromPixels(width()) - Margin;
    const int bottom = Twips::FromPixels(height()) - Margin;
    surface.VerticalLine(DateAxis::Left, AxisTop, bottom, style.lineAxis);
    for (const AxisLabel* label : lblWeight_)
        surface.HorizontalLine(label->Middle().y(), GridLeft, right, style.gridLight);
    for (const AxisLabel* label : lblDate_)
        if (!label->isHidden())
            surface.VerticalLine(label->Middle().x(), AxisTop, bottom, style.gridDark);
}

void ucLineChart::DrawLine(TwipsSurface& surface) const {
    if (noData_)
        surface.Print(NoticePlace, NoData, TheStyle().chartNotice, TheStyle().chartNoticeInk);
    for (int pass = FirstPass; pass <= LastPass; ++pass)
        for (size_t i = 0; i < points_.size(); ++i) {
            const PlotPoint& from = points_[i];
            const PlotPoint& to = points_[qMin(i + 1, points_.size() - 1)];
            PlotSegment(surface, {from.x, from.y}, {to.x, to.y}, pass);
        }
}

/// The lighter pen of the last pass lies as a highlight up and to the right of the darker one. The
/// far end gets its dots with the segment that begins there; the last one ends where it begins.
void ucLineChart::PlotSegment(TwipsSurface& surface, QPoint from, QPoint to, int pass) const {
    const Style& style = TheStyle();
    const Style::LinePen& ln = style.ln[pass];
    const QPoint shift = pass == LastPass ? HighlightShift : QPoint();
    surface.ThickLine(from + shift, to + shift, ln.colour, ln.width);
    surface.ThickPoint(from + shift, ln.colour, ln.width + PointGrowth);
    if (pass != LastPass)
        return;
    surface.ThickPoint(from + shift, style.lineDotEdge, DotEdgeWidth);
    surface.ThickPoint(from + shift, style.lineDotCore, DotCoreWidth);
}

QString ucLineChart::Figures() const {
    if (noData_)
        return NoData;
    QStringList figures;
    for (const WeightLog::Entry& entry : entries_)
        figures << FigureText(entry);
    return figures.join(QStringLiteral(", "));
}

void ucLineChart::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), TheStyle().frame);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), TheStyle().paper);
    TwipsSurface surface(painter);
    DrawAxes(surface);
    DrawLine(surface);
}

void ucLineChart::resizeEvent(QResizeEvent*) {
    PlaceAll();
}

void ucLineChart::PlaceAll() {
    ucHeader1_->setGeometry(1, 1, width() - 2, TheStyle().headerHeight);
    for (AxisLabel* label : lblDate_)
        label->SetTop(Twips::FromPixels(height()) - DateLabelFoot);
}
