#include "analysis/ui/ucBarChart.h"

#include "analysis/LoggedPeriod.h"
#include "analysis/WeightLog.h"
#include "analysis/charts/PeriodPicture.h"
#include "analysis/ui/ChartBar.h"
#include "analysis/ui/ChartLabel.h"
#include "analysis/ui/LedLabel.h"
#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "model/User.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "toolkit/ucHeader.h"
#include "toolkit/ucStrip.h"

#include <QPainter>

namespace {

const QString BarsMode = QStringLiteral("BARS");
const QString ValuesMode = QStringLiteral("VALS");

struct ScaleMark {
    const char* caption;
    int left; ///< twips
};
constexpr ScaleMark Scale[] = {
    {"25%", 3645}, {"50%", 5160}, {"75%", 6630}, {"100%", 8160}, {"125%", 9630}};

} // namespace

ucBarChart::ucBarChart(QWidget* parent)
    : PeriodChart(parent) {
    setAccessibleName(QStringLiteral("Average intake"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    SetSpokenValue([this] { return figures_.Summary(); });
    AddHead();
    AddRows();
    TrackParts();
    resize(sizeHint());
    PlaceAll();
    Toggle(GetRegValue(Settings::ReportMode) == ValuesMode ? 1 : 0);
}

ucBarChart::~ucBarChart() {
    StoreMode();
}

void ucBarChart::StoreMode() const {
    SetRegValue(Settings::ReportMode, mode_);
}

void ucBarChart::AddHead() {
    header_ = new ucHeader(this);
    header_->setObjectName(QStringLiteral("ucHeader1"));
    header_->setFont(TheStyle().strong);
    header_->SetCenterAlignText(false);
    for (const ScaleMark& mark : Scale) {
        auto* strip = new ucStrip(this);
        strip->setObjectName(QStringLiteral("ucRDI%1").arg(scale_.size() + 1));
        strip->SetCaption(QLatin1String(mark.caption));
        KeepMoves(strip);
        scale_.push_back(strip);
    }
}

void ucBarChart::AddRows() {
    picVals_ = new QWidget(this);
    picVals_->setObjectName(QStringLiteral("picVals"));
    picVals_->setPalette(TheStyle().paper);
    picVals_->setAutoFillBackground(true);
    KeepMoves(picVals_);
    for (const Nutrient nutrient : PeriodOrder()) {
        rows_.push_back(std::make_unique<ChartRow>(int(rows_.size()) + 1, nutrient,
                                                   ChartRow::Views{this, this, picVals_}));
        KeepMoves(rows_.back()->imgBar());
    }
}

QSize ucBarChart::sizeHint() const {
    return PeriodPicture::UsualSize;
}

void ucBarChart::resizeEvent(QResizeEvent*) {
    PlaceAll();
}

void ucBarChart::PlaceAll() {
    const PeriodPicture picture(size());
    PlaceHead(picture.HeadHeight() - 1);
    picVals_->setGeometry(picture.ValuesPlace());
    for (int i = 1; i <= int(rows_.size()); ++i)
        PlaceRow(i, picture);
}

void ucBarChart::PlaceHead(int height) {
    header_->setGeometry(1, 1, width() - 2, height);
    for (size_t i = 0; i < scale_.size(); ++i)
        scale_[i]->setGeometry(Twips::ToPixels(Scale[i].left), 1, scale_[i]->sizeHint().width(),
                               height);
}

void ucBarChart::PlaceRow(int i, const PeriodPicture& picture) {
    const ChartRow& row = *rows_[size_t(i - 1)];
    const QRect value = picture.ValuePlace(i);
    row.lbl()->setGeometry(picture.NamePlace(i));
    row.lbl()->setContentsMargins(0, 0, 0, row.lbl()->height() - picture.TextBottom());
    row.imgBar()->move(picture.BarPlace(i));
    row.lblVal()->SetSpace(value.width());
    row.lblVal()->setGeometry(value.translated(-picVals_->pos()));
}

void ucBarChart::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PeriodPicture(size()).PaintGround(painter);
    ucHeader::PaintBehind(painter, header_->geometry());
    PaintFrame(painter, rect(), TheStyle().frame);
}

void ucBarChart::updateBars(QDate start, QDate end) {
    LoggedPeriod logged({start, end});
    updateBars(logged);
}

void ucBarChart::updateBars(LoggedPeriod& logged) {
    const qint32 kept = User::Current().CurrentWeight;
    AdjustToAverageWeight(logged.Dates());
    if (!logged.Sums())
        return ClearBars();
    sums_ = *logged.Sums();
    days_ = logged.Days();
    figures_ = PeriodFigures(sums_, days_, User::Current().RDIs);
    ShowFigures();
    User::Current().CurrentWeight = kept;
    RecalcTargets();
    TellValueChanged();
}

void ucBarChart::AdjustToAverageWeight(const Period& period) {
    averageWeight_ = WeightLog::Average(period);
    User::Current().CurrentWeight = averageWeight_;
    header_->SetCaption(PercentCaption());
    RecalcTargets();
}

void ucBarChart::ShowFigures() {
    for (size_t i = 0; i < rows_.size(); ++i) {
        const NutrientFigure& figure = figures_.Rows()[i];
        const ChartRow& row = *rows_[i];
        rows_[i]->SetFigure(figure);
        row.lblVal()->SetCaption(PeriodPicture::ValueText(figure));
        row.imgBar()->SetWidth(PeriodPicture::BarWidth(figure.Part()));
        if (row.BarIsNarrow() || mode_ == BarsMode)
            row.imgBar()->setHidden(row.BarIsNarrow());
    }
}

void ucBarChart::ClearBars() {
    figures_ = PeriodFigures();
    for (const auto& row : rows_) {
        row->imgBar()->SetWidth(0);
        row->imgBar()->hide();
        row->SetFigure(std::nullopt);
    }
    TellValueChanged();
}

void ucBarChart::ClearFigures() {
    sums_ = Nuts();
    days_ = 0;
    averageWeight_ = 0;
    for (const auto& row : rows_)
        row->lblVal()->SetCaption(QString());
    Toggle(mode_ == ValuesMode ? 1 : 0);
    ClearBars();
}

void ucBarChart::Toggle(int mode) {
    if (mode != 0 && mode != 1)
        return;
    const bool bars = mode == 0;
    mode_ = bars ? BarsMode : ValuesMode;
    header_->SetCaption(bars ? PercentCaption()
                             : QStringLiteral("             Average Nutrient Values"));
    picVals_->setVisible(!bars);
    for (ucStrip* strip : scale_)
        strip->setVisible(bars);
    for (const auto& row : rows_)
        row->imgBar()->setVisible(bars);
}

double ucBarChart::barWidth(qint32 days, double& value, double rdi) {
    value /= days;
    return PeriodPicture::BarWidth(NutrientFigure::PartOfTarget(value, rdi));
}

QString ucBarChart::numFix(double& value) const {
    if (value != 0)
        value /= days_;
    return PeriodFigures::numFix(value);
}

QString ucBarChart::PercentCaption() const {
    return " Percent RDI (avg weight: " + QString::number(averageWeight_) + " lbs)";
}
