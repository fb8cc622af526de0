#include "analysis/ui/frmReport.h"

#include "analysis/LoggedPeriod.h"
#include "analysis/WeightLog.h"
#include "analysis/charts/PeriodPages.h"
#include "analysis/ui/ViewButtons.h"
#include "analysis/ui/ucBarChart.h"
#include "analysis/ui/ucLineChart.h"
#include "analysis/ui/ucPieChart.h"
#include "drawing/Style.h"
#include "model/User.h"
#include "runtime/Attempt.h"
#include "runtime/Clock.h"
#include "runtime/Convert.h"
#include "runtime/Dates.h"
#include "runtime/Format.h"
#include "runtime/RuntimeError.h"
#include "runtime/ScreenTable.h"
#include "runtime/Seams.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "toolkit/LineField.h"
#include "toolkit/MousePointer.h"
#include "toolkit/print/Printing.h"
#include "toolkit/ucAALBL.h"
#include "toolkit/ucButton.h"

#include <QShowEvent>

#include <utility>

namespace {

constexpr int DaysBefore = 6; ///< today, in the period that the screen opens with

const QString InvalidDate =
    QStringLiteral("Please enter a valid start date for the report in the format 'month/day/year' "
                   "(eg 4/3/2002).");
const QString NoWeight = QStringLiteral(
    "There is no weight entry from %1 to %2, so the percent bars and the average values of this "
    "period cannot be worked out. Enter a weight for one of its days on the screen \"Daily "
    "Details\", in the field \"Enter today's weight:\".");
const QString DaysReversed =
    QStringLiteral("There is no weight entry from %1 to %2, because the first day is after the "
                   "last. Enter the earlier day on the left.");

enum View { Bars, Pie, Line, Values };
constexpr ViewButton Views[] = {
    {"cmdBar", "bars", "Bar chart of Percent RDI"},
    {"cmdPie", "pie", "Pie chart breakdown of caloric intake"},
    {"cmdLine", "line-chart", "Line chart of daily weights"},
    {"cmdVals", "values", "Numeric values of averages"},
};

// Measures in pixels.
constexpr int FirstLineLeft = 204; ///< right of the screen's title, which the frame shows
constexpr int DateWidth = 84;
constexpr int ViewsGap = 12;

} // namespace

frmReport::frmReport(QWidget* parent)
    : ScreenForm(Screens::Report, parent) {
    setFocusPolicy(Qt::ClickFocus);
    AddPeriod();
    AddViewButtons();
    AddCharts();
    cmdDone_ = AddButton("cmdDone", "Done", &frmReport::GoHome, "cmddone");
    Printing::AddTo(this, Title(), [this] { return Printed(); });
    ShowLastDays();
}

/// On a page the weight axis fits the weights, however long the period is.
PrintJob frmReport::Printed() const {
    const WeightCurve& shown = ucLine_->Curve();
    const PeriodPages pages{shown_, ucBar_->AverageWeight(), ucBar_->Averages(), ucPie_->Energy(),
                            shown.entries.empty() ? shown : WeightCurve::WithMean(shown.entries)};
    return {"Report, " + pages.Days(), User::Current().UserName + u", " + pages.Days(),
            [pages](Pages& paper) { pages.Paint(paper); }};
}

void frmReport::AddPeriod() {
    aaLBL_ = new ucAALBL(this);
    aaLBL_->setObjectName(QStringLiteral("aaLBL"));
    aaLBL_->SetFont(TheStyle().text);
    aaLBL_->SetForeColor(TheStyle().ink);
    aaLBL_->SetBackColor(TheStyle().canvas);
    aaLBL_->SetCaption(QStringLiteral("Report date range:"));
    aaLBL_->installEventFilter(this);
    txtStart_ = AddDateField("txtStart", QStringLiteral("First day of the report"));
    txtEnd_ = AddDateField("txtEnd", QStringLiteral("Last day of the report"));
    cmdRefresh_ = AddButton("cmdRefresh", "Refresh", &frmReport::Refresh);
}

QLineEdit* frmReport::AddDateField(const char* name, const QString& accessibleName) {
    auto* field = new LineField(this);
    field->setObjectName(QLatin1String(name));
    field->setAccessibleName(accessibleName);
    field->resize(DateWidth, TheStyle().fieldHeight);
    field->installEventFilter(this);
    connect(field, &QLineEdit::returnPressed, this, &frmReport::Refresh);
    return field;
}

void frmReport::AddViewButtons() {
    views_ = new ViewButtons(Views, this);
    views_->resize(views_->sizeHint());
    connect(views_, &ViewButtons::Asked, this, &frmReport::ChooseView);
    connect(views_, &ViewButtons::Hovered, this, &frmReport::AllOff);
}

/// The bars are shown until a view is chosen.
void frmReport::AddCharts() {
    ucBar_ = new ucBarChart(this);
    ucBar_->setObjectName(QStringLiteral("ucBar"));
    ucPie_ = new ucPieChart(this);
    ucPie_->setObjectName(QStringLiteral("ucPie"));
    ucLine_ = new ucLineChart(this);
    ucLine_->setObjectName(QStringLiteral("ucLine"));
    ucLine_->ReadPeriodFrom(txtStart_, txtEnd_);
    for (PeriodChart* chart : {static_cast<PeriodChart*>(ucBar_), static_cast<PeriodChart*>(ucPie_),
                               static_cast<PeriodChart*>(ucLine_)})
        connect(chart, &PeriodChart::MouseMove, this, [this] { AllOff(QString()); });
    ucPie_->hide();
    ucLine_->hide();
}

void frmReport::resizeEvent(QResizeEvent*) {
    PlaceFirstLine();
    for (QWidget* chart : {static_cast<QWidget*>(ucBar_), static_cast<QWidget*>(ucPie_),
                           static_cast<QWidget*>(ucLine_)})
        chart->setGeometry(BoxesPlace());
    PlaceAtEnd(cmdDone_);
}

void frmReport::PlaceFirstLine() {
    int left = FirstLineLeft;
    for (QWidget* control : {static_cast<QWidget*>(aaLBL_), static_cast<QWidget*>(txtStart_),
                             static_cast<QWidget*>(txtEnd_), static_cast<QWidget*>(cmdRefresh_)})
        left = PlaceInTitleLine(control, left) + TheStyle().boxGap;
    PlaceInTitleLine(views_, left + ViewsGap);
}

void frmReport::ShowLastDays() {
    const QDate today = Clock::Today();
    txtEnd_->setText(FormatShortDate(today));
    txtStart_->setText(FormatShortDate(Dates::AddDays(today, -DaysBefore)));
    UpdateCharts();
}

bool frmReport::HasPeriod() const {
    return Dates::IsDate(txtStart_->text()) && Dates::IsDate(txtEnd_->text());
}

Period frmReport::PeriodTyped() const {
    return {ToDate(txtStart_->text()), ToDate(txtEnd_->text())};
}

void frmReport::Refresh() {
    if (!HasPeriod())
        return TellInvalidDate();
    UpdateCharts();
    TellNoWeight();
}

void frmReport::UpdateCharts() {
    MousePointer::SetBusy();
    const MousePointer::NormalAtEnd normalAtEnd;
    shown_ = PeriodTyped();
    LoggedPeriod logged(shown_);
    hasWeight_ = UpdateBars(logged);
    untold_ = !hasWeight_;
    ucPie_->updatePie(logged);
    ucLine_->updateLineChart(shown_.from, shown_.to);
    if (!hasWeight_)
        ucLine_->ClearLabels();
}

/// Returns false if the period has no weight: the average is Null, so there is no weight to derive
/// targets from. The other charts do not need it.
bool frmReport::UpdateBars(LoggedPeriod& logged) {
    try {
        ucBar_->updateBars(logged);
        return true;
    } catch (const RuntimeError& failure) {
        const bool averageIsNull = failure.Number() == ErrorNumber::InvalidUseOfNull;
        if (!averageIsNull || !WeightLog::Entries(shown_).empty())
            throw;
    }
    ucBar_->ClearFigures();
    return false;
}

/// A missing weight is reported once, not each time the screen is shown.
void frmReport::CatchUp() {
    const bool known = !hasWeight_ && !untold_;
    UpdateCharts();
    untold_ = untold_ && !known;
}

/// If a field holds no date, the line keeps what it shows: it would fail to read the fields.
void frmReport::hideEvent(QHideEvent* event) {
    ScreenForm::hideEvent(event);
    if (event->spontaneous())
        return;
    left_ = true;
    SetRegValue(Settings::ReportState, state_);
    if (!HasPeriod())
        ucLine_->ReadPeriodFrom(nullptr, nullptr);
}

void frmReport::showEvent(QShowEvent* event) {
    ScreenForm::showEvent(event);
    if (event->spontaneous())
        return;
    ucLine_->ReadPeriodFrom(txtStart_, txtEnd_);
    if (std::exchange(left_, false) && HasPeriod())
        Attempt([this] { CatchUp(); });
}

void frmReport::TellFindings() {
    if (isHidden())
        return;
    if (HasPeriod())
        TellNoWeight();
    else
        TellInvalidDate();
}

void frmReport::TellInvalidDate() {
    ShowAlert(InvalidDate, this);
}

void frmReport::TellNoWeight() {
    if (!std::exchange(untold_, false))
        return;
    const QString& message = shown_.to < shown_.from ? DaysReversed : NoWeight;
    ShowAlert(message.arg(Dates::ShortText(shown_.from), Dates::ShortText(shown_.to)), this);
}

/// Messages wait until the screen is in front.
void frmReport::DoWinInit() {
    QMetaObject::invokeMethod(this, &frmReport::TellFindings, Qt::QueuedConnection);
    const QString state = GetRegValue(Settings::ReportState);
    const qint32 view = state.isEmpty() ? Bars : ToInteger(state);
    if (HasPeriod())
        ShowView(view);
}

void frmReport::ChooseView(qint32 view) {
    if (HasPeriod())
        ShowView(view);
    else
        TellInvalidDate();
}

void frmReport::ShowView(qint32 view) {
    state_ = QString::number(view);
    if (view < Bars || view > Values)
        return;
    ucLine_->setVisible(view == Line);
    ucBar_->setVisible(view == Bars || view == Values);
    ucPie_->setVisible(view == Pie);
    if (ucBar_->isVisibleTo(this))
        ucBar_->Toggle(view == Values ? 1 : 0);
    views_->SetChosen(view);
}

void frmReport::GoHome() {
    ShowScreen(Screens::Main.name);
}

void frmReport::closeEvent(QCloseEvent* event) {
    SetRegValue(Settings::ReportState, state_);
    ucBar_->StoreMode();
    ScreenForm::closeEvent(event);
}

void frmReport::AllOff(const QString& except) {
    if (except != QLatin1String("cmdRefresh"))
        cmdRefresh_->Reset();
    if (except != QLatin1String("cmddone"))
        cmdDone_->Reset();
    views_->ResetAllBut(except);
}

/// Only cmdRefresh borders the label and the fields, so only it is reset.
bool frmReport::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::MouseMove)
        return ScreenForm::eventFilter(watched, event);
    cmdRefresh_->Reset();
    return watched == aaLBL_;
}
