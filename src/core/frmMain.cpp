#include "core/frmMain.h"

#include "analysis/ui/ucCal_LG.h"
#include "analysis/ui/ucGlance.h"
#include "core/TipBox.h"
#include "drawing/Style.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "runtime/Format.h"
#include "runtime/ScreenTable.h"
#include "runtime/Seams.h"
#include "toolkit/Labels.h"
#include "toolkit/ucAALBL.h"
#include "toolkit/ucBox.h"

#include <QLabel>
#include <QTimer>

namespace {

// Measures in pixels.
constexpr int BoxesTop = 39;
constexpr int BoxesBottom = 10; // from the lower edge
constexpr int SideWidth = 232;
constexpr int GlanceHeight = 337;
constexpr int HintLeft = 204; // right of the screen's title
constexpr int HintTop = 11;
constexpr int HintHeight = 24;
constexpr int WeekLine = 22;

constexpr int Minute = 60000; // milliseconds

/// An earlier day counts as unset.
constexpr int FirstYear = 1992, FirstMonth = 12, FirstDay = 1;

struct WeekLabel {
    const char* name;
    const char* caption;
};

/// No routine fills these values.
constexpr WeekLabel WeekLabels[] = {
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
    if (!day.isValid() || day < QDate(FirstYear, FirstMonth, FirstDay))
        day = Clock::Today();
}

} // namespace

frmMain::frmMain(QWidget* parent)
    : ScreenForm(Screens::Main, parent) {
    setFocusPolicy(Qt::ClickFocus);
    EnsureCurrentDate();
    AddHint();
    AddCalendar();
    AddGlance();
    AddTip();
    AddWeekBox();
    WatchTheDay();
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
    for (const WeekLabel& row : WeekLabels) {
        auto* label = new ucAALBL(weekBox_);
        label->setObjectName(QLatin1String(row.name));
        label->SetBackColor(QColor());
        label->SetForeColor(TheStyle().ink);
        label->SetCaption(QLatin1String(row.caption));
        label->move(left, top);
        top += WeekLine;
    }
}

void frmMain::WatchTheDay() {
    auto* watch = new QTimer(this);
    watch->setObjectName(QStringLiteral("tmrDay"));
    watch->setTimerType(Qt::VeryCoarseTimer);
    connect(watch, &QTimer::timeout, this, &frmMain::ShowToday);
    watch->start(Minute);
}

void frmMain::resizeEvent(QResizeEvent*) {
    const Style& style = TheStyle();
    const int height = this->height() - BoxesTop - BoxesBottom;
    const int sideLeft = width() - style.nestEdge - SideWidth;
    const int tipTop = BoxesTop + GlanceHeight + style.boxGap;
    const int calendarRight = sideLeft - style.boxGap;
    hint_->setGeometry(HintLeft, HintTop, calendarRight - HintLeft, HintHeight);
    calendar_->setGeometry(style.nestEdge, BoxesTop, calendarRight - style.nestEdge, height);
    glanceBox_->setGeometry(sideLeft, BoxesTop, SideWidth, GlanceHeight);
    tip_->setGeometry(sideLeft, tipTop, SideWidth, BoxesTop + height - tipTop);
    weekBox_->setGeometry(tip_->geometry());
}

/// A new calendar opens on today, so the chosen day is printed beside it.
void frmMain::DoWinInit() {
    calendar_->getDate();
    ShowToday();
    const QDate day = App().CurrentDate;
    ShowMonth(QDate(day.year(), day.month(), 1), Dates::LastOfMonth(day));
    tip_->SetTip(App().TipOfTheDay);
}

void frmMain::ShowToday() {
    const QDate day = App().CurrentDate;
    hint_->setText(day == Clock::Today() ? QStringLiteral("Click a day to add foods")
                                         : "Chosen day: " + FormatLongDate(day));
    calendar_->PlaceToday();
}

/// The box names its month, because the chosen day may be in another month than the calendar shows.
void frmMain::ShowMonth(QDate from, QDate to) {
    glanceBox_->SetCaption(Dates::MonthName(from.month()) + u' ' + QString::number(from.year()) +
                           " at a glance");
    glance_->setAccessibleName(glanceBox_->Caption());
    glance_->UpdateGlance(from, to);
}

/// ShowScreen passes the day on to the day screen.
void frmMain::OpenDay(QDate day) {
    App().CurrentDate = day;
    ShowScreen(Screens::Day.name);
}

void frmMain::AllOff(const QString& name) {
    if (name.compare(QLatin1String("ucCal"), Qt::CaseInsensitive) != 0)
        calendar_->ResetButtons();
}
