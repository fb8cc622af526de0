#include "core/frmMain.h"

#include "analysis/ui/ucCal_LG.h"
#include "analysis/ui/ucGlance.h"
#include "core/ScreenNames.h"
#include "core/TipBox.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "runtime/Format.h"
#include "runtime/Seams.h"
#include "toolkit/Labels.h"
#include "toolkit/Style.h"
#include "toolkit/ucAALBL.h"
#include "toolkit/ucBox.h"

#include <QLabel>

namespace {

// Measures in pixels.
constexpr int boxesTop = 39;
constexpr int boxesBottom = 10; // from the lower edge
constexpr int sideWidth = 232;
constexpr int glanceHeight = 337;
constexpr int hintLeft = 204; // behind the frame's title of the screen
constexpr int hintTop = 11;
constexpr int hintHeight = 24;
constexpr int weekLine = 22;

/// Days before it count as unset.
constexpr int firstYear = 1992, firstMonth = 12, firstDay = 1;

struct WeekLabel {
    const char* name;
    const char* caption;
};

/// Nothing fills the week's figures.
constexpr WeekLabel weekLabels[] = {
    {"aaCals", "Average daily calories............................"},
    {"aaChol", "Average daily cholesterol......................."},
    {"aaFiber", "Average daily fiber................................."},
    {"aaPerCarbs", "Percent from carbohydrates................"},
    {"aaPerFat", "Percent from fat................................."},
    {"aaPerPro", "Percent from protein..........................."},
    {"aaWeight", "Current Weight....................................."},
};

void EnsureCurrentDate() {
    QDate& day = App().CurrentDate;
    if (!day.isValid() || day < QDate(firstYear, firstMonth, firstDay))
        day = Clock::Today();
}

} // namespace

frmMain::frmMain(QWidget* parent)
    : Screen(ScreenNames::Home, QStringLiteral("Main"), parent) {
    setFocusPolicy(Qt::ClickFocus);
    EnsureCurrentDate();
    AddHint();
    AddCalendar();
    AddGlance();
    AddTip();
    AddWeekBox();
    calendar_->getDate();
    AllOff(QString());
    tip_->SetTip(App().TipOfTheDay);
}

void frmMain::AddHint() {
    hint_ = MakeLabel(this, QStringLiteral("lblHint"), QString(), TextRole::Quiet);
    hint_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void frmMain::AddCalendar() {
    calendar_ = new ucCal_LG(this);
    calendar_->setObjectName(QStringLiteral("ucCal_LG1"));
    connect(calendar_, &ucCal_LG::DayChosen, this, &frmMain::OpenDay);
    connect(calendar_, &ucCal_LG::MonthChanged, this, &frmMain::ShowMonth);
}

void frmMain::AddGlance() {
    glanceBox_ = new ucBox(QStringLiteral("This month at a glance"), this);
    glanceBox_->setObjectName(QStringLiteral("ucBox1"));
    glance_ = new ucGlance(glanceBox_);
    glance_->setObjectName(QStringLiteral("ucGlance1"));
    connect(glanceBox_, &ucBox::InnerChanged, this,
            [this] { glance_->setGeometry(glanceBox_->Inner()); });
}

void frmMain::AddTip() {
    tip_ = new TipBox(this);
    tip_->setObjectName(QStringLiteral("ucBox_Tip"));
}

void frmMain::AddWeekBox() {
    weekBox_ = new ucBox(QStringLiteral("This week"), this);
    weekBox_->setObjectName(QStringLiteral("ucBox_Week"));
    weekBox_->hide();
    const int left = TheStyle().nestEdge;
    int top = TheStyle().headerHeight + TheStyle().boxGap;
    for (const WeekLabel& row : weekLabels) {
        auto* label = new ucAALBL(weekBox_);
        label->setObjectName(QLatin1String(row.name));
        label->SetBackColor(QColor());
        label->SetForeColor(TheStyle().ink);
        label->SetCaption(QLatin1String(row.caption));
        label->move(left, top);
        top += weekLine;
    }
}

void frmMain::resizeEvent(QResizeEvent*) {
    const Style& style = TheStyle();
    const int height = this->height() - boxesTop - boxesBottom;
    const int sideLeft = width() - style.nestEdge - sideWidth;
    const int tipTop = boxesTop + glanceHeight + style.boxGap;
    const int calendarRight = sideLeft - style.boxGap;
    hint_->setGeometry(hintLeft, hintTop, calendarRight - hintLeft, hintHeight);
    calendar_->setGeometry(style.nestEdge, boxesTop, calendarRight - style.nestEdge, height);
    glanceBox_->setGeometry(sideLeft, boxesTop, sideWidth, glanceHeight);
    tip_->setGeometry(sideLeft, tipTop, sideWidth, boxesTop + height - tipTop);
    weekBox_->setGeometry(tip_->geometry());
}

/// A calendar that is made anew stands on today: the chosen day is told beside it.
void frmMain::DoWinInit() {
    calendar_->getDate();
    const QDate day = App().CurrentDate;
    hint_->setText(day == Clock::Today() ? QStringLiteral("Click a day to add foods")
                                         : "Chosen day: " + FormatLongDate(day));
    ShowMonth(QDate(day.year(), day.month(), 1), Dates::LastOfMonth(day));
    tip_->SetTip(App().TipOfTheDay);
}

/// The box names its month: the chosen day may lie in another one than the calendar opens on.
void frmMain::ShowMonth(QDate from, QDate to) {
    glanceBox_->SetCaption(Dates::MonthName(from.month()) + u' ' + QString::number(from.year()) +
                           " at a glance");
    glance_->setAccessibleName(glanceBox_->Caption());
    glance_->UpdateGlance(from, to);
}

/// ShowScreen passes the day on to the list and the panel and brings them up to date.
void frmMain::OpenDay(QDate day) {
    App().CurrentDate = day;
    ShowScreen(ScreenNames::Day);
}

void frmMain::AllOff(const QString& name) {
    if (name.compare(QLatin1String("ucCal"), Qt::CaseInsensitive) != 0)
        calendar_->ResetButtons();
}
