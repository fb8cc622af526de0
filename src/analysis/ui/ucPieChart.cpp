#include "analysis/ui/ucPieChart.h"

#include "analysis/LoggedPeriod.h"
#include "analysis/LoggedSums.h"
#include "analysis/ui/PieChart.h"
#include "drawing/Style.h"
#include "toolkit/ucBox.h"
#include "toolkit/ucHeader.h"

namespace {

PieForm PeriodPie() {
    PieForm form;
    form.size = QSize(252, 242);
    form.centre = QPointF(126, 121);
    form.radius = 112;
    form.noDataPlace = QPointF(90, 90);
    form.noDataCaptions = {"Total Fat --", "Protein --", "Carbs. --"};
    form.ground = TheStyle().paper;
    form.background = 123;
    return form;
}

} // namespace

ucPieChart::ucPieChart(QWidget* parent)
    : PeriodChart(parent)
    , box_(new ucBox(QStringLiteral("Caloric Breakdown"), this))
    , pie_(new PieChart(PeriodPie(), box_)) {
    setAccessibleName(box_->Caption());
    SetSpokenValue([this] { return pie_->picPIE()->pie().Summary(); });
    box_->Header()->setObjectName(QStringLiteral("ucHeader1"));
    KeepMoves(box_->Header());
    TrackParts();
    pie_->Show({0.33, 0.33, 0.33});
}

void ucPieChart::updatePie(QDate start, QDate end) {
    Show(LoggedSums::AverageEnergy({start, end}));
}

void ucPieChart::updatePie(LoggedPeriod& logged) {
    Show(logged.AverageEnergy());
}

void ucPieChart::Show(const std::optional<Nuts>& average) {
    pie_->Show(EnergyShares::Of(average));
    TellValueChanged();
}

FigureTable ucPieChart::Figures() const {
    return FigureTable::Of(Energy());
}

const EnergyShares& ucPieChart::Energy() const {
    return pie_->picPIE()->pie().EnergyParts();
}

void ucPieChart::AddOverLay() {
    pie_->AddOverLay();
}

void ucPieChart::resizeEvent(QResizeEvent*) {
    box_->setGeometry(rect());
    pie_->setGeometry(box_->Inner());
}
