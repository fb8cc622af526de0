#include "analysis/ui/ucDaily.h"

#include "analysis/LoggedSums.h"
#include "analysis/charts/DayPicture.h"
#include "analysis/charts/PercentGrid.h"
#include "analysis/ui/BarGrid.h"
#include "analysis/ui/ChartBar.h"
#include "analysis/ui/ChartLabel.h"
#include "analysis/ui/LedLabel.h"
#include "analysis/ui/PieChart.h"
#include "analysis/ui/ScaleCaption.h"
#include "analysis/ui/SpokenTable.h"
#include "analysis/ui/ViewButtons.h"
#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "toolkit/ControlInterface.h"
#include "toolkit/ucAALBL.h"
#include "toolkit/ucHeader.h"
#include "toolkit/ucStrip.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int ViewModes = 3;
constexpr const char* Modes[ViewModes] = {"RDI", "VALS", "PIE"};
constexpr const char* StripCaptions[ViewModes] = {" Percent RDI", " Nutrient Values",
                                                  " Caloric Breakdown"};
constexpr ViewButton Views[ViewModes] = {
    {"cmdBar", "bars", "Bar chart of percent RDI"},
    {"cmdVals", "values", "Numeric daily totals"},
    {"cmdPIEChart", "pie", "Pie chart of caloric breakdown"},
};

// Pixels.
constexpr int PanelWidth = 338;
constexpr int PanelHeight = 476;

PieForm DailyPie() {
    PieForm form;
    form.size = QSize(108, 108);
    form.centre = QPointF(54, 54);
    form.radius = 48;
    form.noDataPlace = QPointF(12, 35);
    form.overlayWithoutData = true;
    form.noDataCaptions = {"Total Fat --", "Protein --", "Carbs. --"};
    form.ground = TheStyle().paper;
    return form;
}

int ModeNumber(const QString& mode) {
    for (int i = 0; i < ViewModes; ++i)
        if (mode.compare(QLatin1String(Modes[i]), Qt::CaseInsensitive) == 0)
            return i;
    return 0;
}

} // namespace

ucDaily::ucDaily(QWidget* parent)
    : DrawnControl(parent)
    , date_(Clock::Today()) {
    setAccessibleName(QStringLiteral("Daily summary"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    AddHead();
    AddViews();
    AddRows();
    AddPie();
    WatchPointer(this, {.row = 0, .raises = true});
    resize(sizeHint());
    PlaceAll();
    Toggle(ModeNumber(GetRegValue(Settings::DailyMode)));
}

ucDaily::~ucDaily() {
    StoreMode();
}

void ucDaily::StoreMode() const {
    SetRegValue(Settings::DailyMode, mode_);
}

void ucDaily::AddHead() {
    strip_ = new ucStrip(this);
    strip_->setObjectName(QStringLiteral("ucStrip"));
    WatchPointer(strip_);
    buttons_ = new ViewButtons(Views, this);
    buttons_->setObjectName(QStringLiteral("Picture1"));
    WatchPointer(buttons_);
    connect(buttons_, &ViewButtons::Asked, this, &ucDaily::Toggle);
    connect(buttons_, &ViewButtons::Hovered, this, &ucDaily::AllOff);
    lblPercents_ = new ScaleCaption(this);
    lblPercents_->setObjectName(QStringLiteral("lblPercents"));
    lblPercents_->SetCaption(QStringLiteral("0%        50%     100%"));
    WatchPointer(lblPercents_);
}

void ucDaily::AddViews() {
    labels_ = new QWidget(this);
    labels_->setObjectName(QStringLiteral("picLabels"));
    WatchPointer(labels_, {.row = 0, .raises = true});
    picRDIs_ = new BarGrid(this);
    picRDIs_->setObjectName(QStringLiteral("picRDIs"));
    WatchPointer(picRDIs_);
    picVals_ = new QWidget(this);
    picVals_->setObjectName(QStringLiteral("picVals"));
    WatchPointer(picVals_, {.row = 0, .raises = true});
}

void ucDaily::AddRows() {
    for (const NutrientFigure& figure : figures_.Rows()) {
        const int i = int(rows_.size()) + 1;
        rows_.push_back(
            std::make_unique<DailyRow>(i, figure, DailyRow::Views{labels_, picRDIs_, picVals_}));
        WatchPointer(rows_.back()->lbl(), {.row = i, .raises = true});
        WatchPointer(rows_.back()->imgBar(), {.row = i, .raises = false});
        WatchPointer(rows_.back()->lblVal(), {.row = i, .raises = true});
    }
}

void ucDaily::AddPie() {
    picPieChart_ = new PieChart(DailyPie(), this);
    picPieChart_->setObjectName(QStringLiteral("picPieChart"));
    WatchPointer(picPieChart_);
    WatchPointer(picPieChart_->picPIE());
    for (ucAALBL* label : picPieChart_->Labels())
        WatchPointer(label);
}

QSize ucDaily::sizeHint() const {
    return {PanelWidth, PanelHeight};
}

ucDaily::Layout ucDaily::layoutRects() const {
    const int inner = width() - 2;
    const int buttonsTop = 1 + TheStyle().headerHeight;
    const int buttonsHeight = buttons_->sizeHint().height();
    const int top = buttonsTop + buttonsHeight + 1;
    const int rows = DayPicture(width()).Size().height();
    Layout layout;
    layout.strip = QRect(1, 1, inner, TheStyle().headerHeight);
    layout.buttons = QRect(1, buttonsTop, inner, buttonsHeight);
    layout.labels = QRect(1, top, DayPicture::NamesWidth, rows);
    layout.view = QRect(1 + DayPicture::NamesWidth, top, inner - DayPicture::NamesWidth, rows);
    layout.pie = QRect(1, top, inner, height() - 1 - top);
    return layout;
}

void ucDaily::resizeEvent(QResizeEvent*) {
    PlaceAll();
    for (const auto& row : rows_)
        row->FitBar(DayPicture(width()));
}

void ucDaily::PlaceAll() {
    const Layout layout = layoutRects();
    strip_->setGeometry(layout.strip);
    buttons_->setGeometry(layout.buttons);
    labels_->setGeometry(layout.labels);
    picRDIs_->setGeometry(layout.view);
    picVals_->setGeometry(layout.view);
    picPieChart_->setGeometry(layout.pie);
    PlaceScale(layout);
}

void ucDaily::PlaceScale(const Layout& layout) {
    const int left = layout.buttons.left() + buttons_->Right();
    lblPercents_->setGeometry(left, layout.buttons.top(), layout.view.right() - left,
                              layout.buttons.height());
    QList<int> marks;
    for (int n = 0; n < 3; ++n)
        marks << layout.view.left() - left +
                     Twips::ToPixels(PercentGrid::Origin + n * PercentGrid::DarkStep);
    lblPercents_->SetMarks(marks);
}

void ucDaily::paintEvent(QPaintEvent*) {
    const Style& style = TheStyle();
    QPainter painter(this);
    PaintArea(painter, rect(), style.paper);
    PaintEdge(painter, QRect(1, layoutRects().buttons.bottom() + 1, width() - 2, 1), Qt::TopEdge,
              style.rule);
    ucHeader::PaintBehind(painter, strip_->geometry());
    PaintFrame(painter, rect(), style.frame);
}

void ucDaily::showEvent(QShowEvent*) {
    updateCharts();
    picRDIs_->update();
}

void ucDaily::setDate(QDate date) {
    date_ = date;
    updateCharts();
}

void ucDaily::updateCharts() {
    if (!App().AppStarted)
        return;
    const std::optional<Nuts> sums = LoggedSums::OfDay(date_);
    if (sums)
        sums_ = *sums;
    figures_ = sums ? DayFigures(*sums, User::Current().RDIs) : figures_.WithoutData();
    ShowFigures();
}

void ucDaily::ShowFigures() {
    for (size_t i = 0; i < rows_.size(); ++i) {
        const NutrientFigure& figure = figures_.Rows()[i];
        rows_[i]->Show(figure, DayPicture::ValueText(figure, figures_.HasData()),
                       DayPicture(width()));
    }
    FitValues();
    picPieChart_->Show(figures_.Energy());
}

void ucDaily::FitValues() {
    if (mode_ != QLatin1String(Modes[1]))
        return;
    for (const auto& row : rows_)
        row->FitValue();
}

double ucDaily::barWidth(double value, double rdi) const {
    return DayPicture(width()).BarWidth(value, rdi);
}

void ucDaily::Toggle(int mode) {
    if (mode < 0 || mode >= ViewModes)
        return;
    mode_ = QLatin1String(Modes[mode]);
    strip_->SetCaption(QLatin1String(StripCaptions[mode]));
    picRDIs_->setVisible(mode == 0);
    lblPercents_->setVisible(mode == 0);
    picVals_->setVisible(mode == 1);
    picPieChart_->setVisible(mode == 2);
    labels_->setVisible(mode != 2);
    buttons_->SetChosen(mode);
    FitValues();
}

FigureTable ucDaily::Figures() const {
    return mode_ == QLatin1String(Modes[2]) ? FigureTable::Of(figures_.Energy())
                                            : FigureTable::Of(figures_.Rows());
}

QAccessibleInterface* ucDaily::MakeAccessible() {
    return new WithSpokenTable<ControlInterface>(this, [this] { return Figures(); });
}

void ucDaily::AddOverLay() {
    picPieChart_->AddOverLay();
}

void ucDaily::hilite(int row) {
    if (hilited_ == row)
        return;
    if (hilited_ != 0)
        rows_[size_t(hilited_ - 1)]->SetLit(false);
    if (row != 0)
        rows_[size_t(row - 1)]->SetLit(true);
    hilited_ = row;
}

void ucDaily::Unhilite() {
    hilite(0);
}

void ucDaily::AllOff(const QString& name) {
    buttons_->ResetAllBut(name);
    Unhilite();
}

void ucDaily::leaveEvent(QEvent*) {
    AllOff({});
}

void ucDaily::WatchPointer(QWidget* control, Hover hover) {
    hovers_.insert(control, hover);
    control->setMouseTracking(true);
    control->installEventFilter(this);
}

bool ucDaily::eventFilter(QObject* watched, QEvent* event) {
    const auto hover = hovers_.constFind(watched);
    if (event->type() != QEvent::MouseMove || hover == hovers_.cend())
        return DrawnControl::eventFilter(watched, event);
    OnPointer(*hover, static_cast<QMouseEvent*>(event));
    return true;
}

/// Raised first, because the host answers by taking off every highlight.
void ucDaily::OnPointer(const Hover& hover, const QMouseEvent* move) {
    if (hover.row == 0)
        AllOff({});
    if (hover.raises)
        RaiseMouseMove(move);
    if (hover.row != 0)
        hilite(hover.row);
}
