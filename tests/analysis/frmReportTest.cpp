#include "analysis/ui/frmReport.h"

#include "AnalysisTest.h"
#include "Statements.h"
#include "analysis/ui/AxisLabel.h"
#include "analysis/ui/ChartBar.h"
#include "analysis/ui/ChartLabel.h"
#include "analysis/ui/ucBarChart.h"
#include "analysis/ui/ucLineChart.h"
#include "analysis/ui/ucPieChart.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/RuntimeError.h"
#include "runtime/Settings.h"
#include "store/Connection.h"
#include "support/Failure.h"
#include "toolkit/MousePointer.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucButtonA.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <utility>

namespace {

const QDate Today(2002, 4, 3);
const QString StateSetting = QStringLiteral("REPORTSTATE");
const QString InvalidDate =
    QStringLiteral("Please enter a valid start date for the report in the format "
                   "'month/day/year' (eg 4/3/2002).");

QString NoWeight(const char* start, const char* end) {
    return QStringLiteral("There is no weight entry from %1 to %2, so the percent bars and the "
                          "average values of this period cannot be worked out. Enter a weight for "
                          "one of its days on the screen \"Daily Details\", in the field \"Enter "
                          "today's weight:\".")
        .arg(QLatin1String(start), QLatin1String(end));
}

const QString NoDay =
    QStringLiteral("There is no weight entry from 4/3/2002 to 4/1/2002, because the first day "
                   "is after the last. Enter the earlier day on the left.");

class frmReportTest : public AnalysisTest {
protected:
    void SetUp() override {
        AnalysisTest::SetUp();
        Clock::SetToday(Today);
    }
    void TearDown() override {
        report.reset();
        AnalysisTest::TearDown();
    }

    /// As ShowScreen opens it.
    void Open() {
        report = std::make_unique<frmReport>();
        report->resize(766, 562);
        report->show();
        report->DoWinInit();
    }
    void LogWeek() {
        for (int day = 0; day < 7; ++day) {
            Weigh(150 + day, Today.addDays(-day));
            Eat({{QStringLiteral("Calories"), 1000},
                 {QStringLiteral("Protein"), 50},
                 {QStringLiteral("carbs"), 200}},
                Today.addDays(-day));
        }
    }
    void Type(const char* field, const QString& text) {
        Find<QLineEdit>(report.get(), QLatin1String(field))->setText(text);
    }
    void SetPeriod(const QString& start, const QString& end) {
        Type("txtStart", start);
        Type("txtEnd", end);
    }
    void Press(const char* button) { Click(Find(report.get(), QLatin1String(button))); }
    bool IsShown(const char* chart) {
        return Find(report.get(), QLatin1String(chart))->isVisible();
    }
    /// The visible ones of bars, values, pie and line.
    QString Views() {
        QStringList shown;
        if (IsShown("ucBar"))
            shown << (Find(Bars(), QStringLiteral("picVals"))->isVisible() ? "values" : "bars");
        for (const char* chart : {"ucPie", "ucLine"})
            if (IsShown(chart))
                shown << QLatin1String(chart);
        return shown.join(u' ');
    }
    QString ChosenButton() {
        QStringList chosen;
        for (const ucButtonA* button : report->findChildren<ucButtonA*>())
            if (button->property("Chosen").toBool())
                chosen << button->objectName();
        return chosen.join(u' ');
    }
    ucBarChart* Bars() { return Find<ucBarChart>(report.get(), QStringLiteral("ucBar")); }
    ucLineChart* Line() { return Find<ucLineChart>(report.get(), QStringLiteral("ucLine")); }
    QString LineText() { return Line()->SpokenValue(); }
    QString PieText() {
        return Find<ucPieChart>(report.get(), QStringLiteral("ucPie"))->SpokenValue();
    }
    double BarWidth(int row) {
        return Find<ChartBar>(Bars(), QStringLiteral("imgBar%1").arg(row))->Width();
    }
    QString ValueText(int row) {
        return Find<ChartLabel>(Bars(), QStringLiteral("lblVal%1").arg(row))->Caption();
    }
    QString Lit() {
        QStringList lit;
        for (const char* name : {"cmdRefresh", "cmdDone"})
            if (Find<ucButton>(report.get(), QLatin1String(name))->State() == 2)
                lit << QLatin1String(name);
        for (const ucButtonA* button : report->findChildren<ucButtonA*>())
            if (button->Shown() == QStringLiteral("img_ROLL"))
                lit << button->objectName();
        return lit.join(u' ');
    }
    /// What a press of Refresh reads and writes, in order.
    /// What a refresh reads and writes, and which charts have then changed, in their order. The
    /// line changes twice: it is empty while it is read.
    QStringList StepsOfRefresh() {
        App().AppInfo.AUTOUPDATERDI = true; // the bars end by writing the targets
        Eat({{QStringLiteral("Calories"), 900}, {QStringLiteral("TotalFat"), 100}}, Today);
        QMap<QString, QString> shown;
        QStringList order;
        const auto noteCharts = [&] {
            for (const auto* chart : report->findChildren<PeriodChart*>())
                if (std::exchange(shown[chart->objectName()], chart->SpokenValue()) !=
                    chart->SpokenValue())
                    order << chart->objectName();
        };
        noteCharts();
        order.clear();
        {
            const Statements statements(UserDB(), [&](const QString& statement) {
                noteCharts();
                order << StepOf(statement);
            });
            Press("cmdRefresh");
        }
        noteCharts();
        return order;
    }
    static QStringList StepOf(QString statement) {
        const std::pair<const char*, const char*> steps[] = {
            {"Avg(USER_WEIGHTS.Weight)", "average weight"},
            {"keep_amounts", "sums and days"},
            {"ORDER BY UDate", "weights"},
            {"Min(Weight)", "extremes"},
            {"UPDATE profiles", "profile"}};
        statement.remove(u'"').remove(u'`');
        for (const auto& [part, step] : steps)
            if (statement.simplified().contains(QLatin1String(part), Qt::CaseInsensitive))
                return {QLatin1String(step)};
        return {};
    }
    static void RunQueued() { QApplication::sendPostedEvents(); }

    std::unique_ptr<frmReport> report;
};

} // namespace

// ---- coming up

TEST_F(frmReportTest, OpensWithTheLastSevenDaysIncludingToday) {
    LogWeek();
    Open();
    EXPECT_EQ(Find<QLineEdit>(report.get(), QStringLiteral("txtStart"))->text(),
              QStringLiteral("03/28/2002"));
    EXPECT_EQ(Find<QLineEdit>(report.get(), QStringLiteral("txtEnd"))->text(),
              QStringLiteral("04/03/2002"));
    EXPECT_EQ(Line()->Points().size(), 7U);
    EXPECT_EQ(BarWidth(1), 3000); // 1000 of 2000 kcal
    EXPECT_EQ(PieText(), QStringLiteral("Fat 0%, Protein 20%, Carbs. 80%"));
}

TEST_F(frmReportTest, ThePeriodUsedLastIsNotKept) {
    LogWeek();
    Open();
    SetPeriod(QStringLiteral("4/1/2002"), QStringLiteral("4/2/2002"));
    Press("cmdRefresh");
    Open();
    EXPECT_EQ(Find<QLineEdit>(report.get(), QStringLiteral("txtStart"))->text(),
              QStringLiteral("03/28/2002"));
}

TEST_F(frmReportTest, TextsAndTipsAreThoseOfTheScreen) {
    LogWeek();
    Open();
    EXPECT_EQ(report->Title(), QStringLiteral("Report"));
    EXPECT_EQ(Caption(*report, "aaLBL"), QStringLiteral("Report date range:"));
    EXPECT_EQ(Caption(*report, "cmdRefresh"), QStringLiteral("Refresh"));
    EXPECT_EQ(Caption(*report, "cmdDone"), QStringLiteral("Done"));
    const std::pair<const char*, const char*> tips[] = {
        {"cmdBar", "Bar chart of Percent RDI"},
        {"cmdPie", "Pie chart breakdown of caloric intake"},
        {"cmdLine", "Line chart of daily weights"},
        {"cmdVals", "Numeric values of averages"}};
    for (const auto& [name, tip] : tips)
        EXPECT_EQ(Find(report.get(), QLatin1String(name))->toolTip(), QLatin1String(tip));
}

TEST_F(frmReportTest, ControlsAreReachedInReadingOrder) {
    LogWeek();
    Open();
    QStringList order;
    QWidget* first = Find(report.get(), QStringLiteral("txtStart"));
    for (QWidget* control = first;;) {
        if (control->focusPolicy() & Qt::TabFocus)
            order << control->objectName();
        control = control->nextInFocusChain();
        if (control == first)
            break;
    }
    EXPECT_EQ(order, (QStringList{"txtStart", "txtEnd", "cmdRefresh", "cmdBar", "cmdPie", "cmdLine",
                                  "cmdVals", "cmdDone"}));
}

TEST_F(frmReportTest, NothingOfTheFirstLineOverlapsOrLeavesTheScreen) {
    LogWeek();
    Open();
    int right = 196; // the frame's title ends there
    for (const char* name :
         {"aaLBL", "txtStart", "txtEnd", "cmdRefresh", "cmdBar", "cmdPie", "cmdLine", "cmdVals"}) {
        QWidget* control = Find(report.get(), QLatin1String(name));
        const int left = control->mapTo(report.get(), QPoint()).x();
        EXPECT_GT(left, right) << name;
        EXPECT_TRUE(control->isVisible());
        EXPECT_TRUE(control->visibleRegion().boundingRect().size() == control->size()) << name;
        right = left + control->width();
    }
    EXPECT_LE(right, 752);
}

// ---- refreshing

TEST_F(frmReportTest, RefreshAppliesThePeriodToAllThreeCharts) {
    LogWeek();
    Open();
    SetPeriod(QStringLiteral("3/28/2002"), QStringLiteral("3/29/2002"));
    Eat({{QStringLiteral("Calories"), 1000}, {QStringLiteral("TotalFat"), 100}},
        QDate(2002, 3, 29));
    EXPECT_EQ(Line()->Points().size(), 7U);
    Press("cmdRefresh");
    EXPECT_EQ(LineText(), QStringLiteral("3/28/2002 156 lbs, 3/29/2002 155 lbs"));
    EXPECT_EQ(BarWidth(1), 4500);
    EXPECT_EQ(PieText(), QStringLiteral("Fat 31%, Protein 14%, Carbs. 55%"));
    EXPECT_FALSE(MousePointer::IsBusy());
}

TEST_F(frmReportTest, BarsPieAndLineAreRefreshedInThisOrder) {
    LogWeek();
    Open();
    Users(QStringLiteral("UPDATE USER_WEIGHTS SET Weight = Weight + 1"));
    EXPECT_EQ(StepsOfRefresh(),
              (QStringList{"average weight", "profile", "sums and days", "ucBar", "profile",
                           "ucPie", "ucLine", "weights", "extremes", "ucLine"}));
}

TEST_F(frmReportTest, WithoutAWeightPieAndLineAreStillRefreshedInThisOrder) {
    LogWeek();
    Open();
    Users(QStringLiteral("DELETE FROM USER_WEIGHTS"));
    ExpectAlert(NoWeight("3/28/2002", "4/3/2002"));
    QStringList steps = StepsOfRefresh();
    steps.removeOne(QStringLiteral("weights")); // tells a missing weight from another Null
    EXPECT_EQ(steps, (QStringList{"average weight", "ucBar", "sums and days", "ucPie", "ucLine",
                                  "weights", "ucLine"}));
}

TEST_F(frmReportTest, ReturnInAFieldRefreshesToo) {
    LogWeek();
    Open();
    Type("txtStart", QStringLiteral("April 3, 2002"));
    QTest::keyClick(Find(report.get(), QStringLiteral("txtStart")), Qt::Key_Return);
    EXPECT_EQ(LineText(), QStringLiteral("4/3/2002 150 lbs"));
}

TEST_F(frmReportTest, AStartThatIsNoDateIsRefusedAndTheChartsStay) {
    LogWeek();
    Open();
    const QString line = LineText(), pie = PieText();
    for (const char* text : {"", "rubbish", "2/29/2002", "13/1/2002", "4/31/2002", "4/3",
                             "4.3.2002", "4/3/2002 12:00", "0"}) {
        ExpectAlert(InvalidDate);
        SetPeriod(QLatin1String(text), QStringLiteral("3/28/2002"));
        Press("cmdRefresh");
        EXPECT_EQ(LineText(), line) << text;
        EXPECT_EQ(PieText(), pie);
        EXPECT_EQ(BarWidth(1), 3000);
    }
}

TEST_F(frmReportTest, AnEndThatIsNoDateGivesTheMessageThatAsksForAStart) {
    LogWeek();
    Open();
    const QString line = LineText();
    ExpectAlert(InvalidDate);
    SetPeriod(QStringLiteral("4/1/2002"), QStringLiteral("rubbish"));
    Press("cmdRefresh");
    EXPECT_EQ(LineText(), line);
}

TEST_F(frmReportTest, AnEndBeforeTheStartIsAcceptedAndHasNoRows) {
    LogWeek();
    Open();
    ExpectAlert(NoDay);
    SetPeriod(QStringLiteral("4/3/2002"), QStringLiteral("4/1/2002"));
    Press("cmdRefresh");
    EXPECT_EQ(BarWidth(1), 0);
    EXPECT_EQ(PieText(), QStringLiteral("No data to chart"));
    EXPECT_EQ(LineText(), QStringLiteral("No weight data To chart"));
}

TEST_F(frmReportTest, OneDayIsAPeriod) {
    LogWeek();
    Open();
    SetPeriod(QStringLiteral("4/1/2002"), QStringLiteral("4/1/2002"));
    Press("cmdRefresh");
    EXPECT_EQ(LineText(), QStringLiteral("4/1/2002 152 lbs"));
    EXPECT_EQ(BarWidth(1), 3000);
}

TEST_F(frmReportTest, TenYearsAreAPeriod) {
    LogWeek();
    Weigh(180, QDate(1992, 4, 4));
    EatCalories(3000, QDate(1992, 4, 4));
    Open();
    SetPeriod(QStringLiteral("4/3/1992"), QStringLiteral("4/3/2002"));
    Press("cmdRefresh");
    EXPECT_EQ(Line()->Points().size(), 8U);
    EXPECT_EQ(BarWidth(1), 3750); // 10000 kcal on 8 days
}

TEST_F(frmReportTest, DaysBefore1992AndAfter2100AreTaken) {
    LogWeek();
    Weigh(180, QDate(1950, 1, 1));
    Weigh(190, QDate(2150, 1, 1));
    Open();
    SetPeriod(QStringLiteral("1/1/1900"), QStringLiteral("12/31/1991"));
    Press("cmdRefresh");
    EXPECT_EQ(LineText(), QStringLiteral("1/1/1950 180 lbs"));
    SetPeriod(QStringLiteral("1/1/2101"), QStringLiteral("12/31/2199"));
    Press("cmdRefresh");
    EXPECT_EQ(LineText(), QStringLiteral("1/1/2150 190 lbs"));
}

TEST_F(frmReportTest, TheLastSevenDaysFollowTheClock) {
    const std::pair<QDate, const char*> clocks[] = {{{1970, 1, 3}, "12/28/1969 01/03/1970"},
                                                    {{2000, 3, 2}, "02/25/2000 03/02/2000"},
                                                    {{2106, 2, 7}, "02/01/2106 02/07/2106"}};
    for (const auto& [today, period] : clocks) {
        Clock::SetToday(today);
        Weigh(150, today);
        Weigh(151, today.addDays(-6));
        Weigh(152, today.addDays(-7));
        Open();
        EXPECT_EQ(Find<QLineEdit>(report.get(), QStringLiteral("txtStart"))->text() + " " +
                      Find<QLineEdit>(report.get(), QStringLiteral("txtEnd"))->text(),
                  QLatin1String(period));
        EXPECT_EQ(Line()->Points().size(), 2U);
    }
}

TEST_F(frmReportTest, AFailingQueryIsNotCaught) {
    LogWeek();
    Open();
    Users(QStringLiteral("ALTER TABLE USER_FOODS RENAME TO gone"));
    EXPECT_LT(
        FailureOf([&] { Find<ucButton>(report.get(), QStringLiteral("cmdRefresh"))->Activate(); }),
        0);
    EXPECT_FALSE(MousePointer::IsBusy());
}

TEST_F(frmReportTest, ANullGenderInTheProfileDoesNotKeepTheReportFromBeingShown) {
    LogWeek();
    App().AppInfo.AUTOUPDATERDI = true;
    Open();
    Users(QStringLiteral("UPDATE profiles SET gender = NULL"));
    EXPECT_EQ(
        FailureOf([&] { Find<ucButton>(report.get(), QStringLiteral("cmdRefresh"))->Activate(); }),
        0);
}

// ---- a person who has not weighed in during the period

TEST_F(frmReportTest, WithoutAWeightTheScreenOpensWithTheOtherChartsAndSaysSoOnce) {
    EatCalories(1000, Today);
    Eat({{QStringLiteral("Calories"), 900}, {QStringLiteral("TotalFat"), 100}}, Today);
    Open();
    EXPECT_TRUE(report->isVisible());
    EXPECT_EQ(Views(), QStringLiteral("bars"));
    EXPECT_EQ(PieText(), QStringLiteral("Fat 100%, Protein 0%, Carbs. 0%"));
    EXPECT_EQ(BarWidth(1), 0);
    EXPECT_EQ(LineText(), QStringLiteral("No weight data To chart"));
    ExpectAlert(NoWeight("3/28/2002", "4/3/2002"));
    RunQueued();
    report->DoWinInit();
    RunQueued();
}

TEST_F(frmReportTest, AMessageOnLoadingWaitsUntilTheScreenIsInFront) {
    report = std::make_unique<frmReport>();
    RunQueued();
    report->DoWinInit();
    report->DoWinInit();
    RunQueued();
    ExpectAlert(NoWeight("3/28/2002", "4/3/2002"));
    report->show();
    report->DoWinInit();
    report->DoWinInit();
    RunQueued();
}

TEST_F(frmReportTest, ARefreshReportsAMissingWeightOnceInAnyView) {
    LogWeek();
    Open();
    for (const char* view : {"cmdBar", "cmdPie", "cmdLine", "cmdVals"}) {
        Press(view);
        SetPeriod(QStringLiteral("1/1/2002"), QStringLiteral("1/31/2002"));
        ExpectAlert(NoWeight("1/1/2002", "1/31/2002"));
        Press("cmdRefresh");
        SetPeriod(QStringLiteral("3/28/2002"), QStringLiteral("4/3/2002"));
        Press("cmdRefresh");
    }
    RunQueued();
}

TEST_F(frmReportTest, AViewChosenAfterwardsShowsNoBarOfThePeriodBefore) {
    LogWeek();
    Open();
    SetPeriod(QStringLiteral("1/1/2002"), QStringLiteral("1/31/2002"));
    ExpectAlert(NoWeight("1/1/2002", "1/31/2002"));
    Press("cmdRefresh");
    Press("cmdPie");
    Press("cmdBar");
    for (int row = 1; row <= 31; ++row)
        EXPECT_EQ(Find(Bars(), QStringLiteral("imgBar%1").arg(row))->width(), 0) << row;
}

TEST_F(frmReportTest, AfterTheMessageNoViewShowsFiguresOfThePeriodBefore) {
    LogWeek();
    Open();
    Press("cmdVals");
    SetPeriod(QStringLiteral("1/1/2002"), QStringLiteral("1/31/2002"));
    ExpectAlert(NoWeight("1/1/2002", "1/31/2002"));
    Press("cmdRefresh");
    for (const char* view : {"cmdVals", "cmdBar", "cmdPie", "cmdLine"}) {
        Press(view);
        for (int row = 1; row <= 31; ++row) {
            EXPECT_EQ(ValueText(row), QString()) << row;
            EXPECT_EQ(BarWidth(row), 0) << row;
        }
        for (const AxisLabel* label : Line()->findChildren<AxisLabel*>())
            EXPECT_TRUE(label->isHidden() || label->Caption().isEmpty()) << view;
    }
    Press("cmdBar");
    EXPECT_EQ(Find(Bars(), QStringLiteral("ucHeader1"))->property("Caption").toString(),
              QStringLiteral(" Percent RDI (avg weight: 0 lbs)"));
    EXPECT_EQ(PieText(), QStringLiteral("No data to chart"));
    EXPECT_EQ(LineText(), QStringLiteral("No weight data To chart"));
    EXPECT_EQ(Bars()->SpokenValue(), QStringLiteral("No data to chart"));
}

TEST_F(frmReportTest, AWeightInTheNextPeriodBringsAllFiguresBack) {
    LogWeek();
    Open();
    SetPeriod(QStringLiteral("1/1/2002"), QStringLiteral("1/31/2002"));
    ExpectAlert(NoWeight("1/1/2002", "1/31/2002"));
    Press("cmdRefresh");
    SetPeriod(QStringLiteral("3/28/2002"), QStringLiteral("4/3/2002"));
    Press("cmdRefresh");
    EXPECT_EQ(BarWidth(1), 3000);
    Press("cmdVals");
    EXPECT_TRUE(ValueText(1).endsWith(QStringLiteral("1,000 kcal")));
    Press("cmdLine");
    EXPECT_EQ(Line()->Points().size(), 7U);
    EXPECT_FALSE(Find<AxisLabel>(Line(), QStringLiteral("lblWeight7"))->Caption().isEmpty());
}

TEST_F(frmReportTest, TheChartItselfFailsOnAnInvalidDateWhenItIsShown) {
    LogWeek();
    Open();
    Type("txtStart", QStringLiteral("rubbish"));
    EXPECT_EQ(FailureOf([&] { Line()->show(); }), ErrorNumber::TypeMismatch);
}

TEST_F(frmReportTest, TheMessageNamesThePeriodThatWasRead) {
    Open();
    Type("txtStart", QStringLiteral("4/1/2002"));
    ExpectAlert(NoWeight("3/28/2002", "4/3/2002"));
    RunQueued();
}

TEST_F(frmReportTest, AWeightOfZeroIsNoWeight) {
    Weigh(0, Today);
    Open();
    ExpectAlert(NoWeight("3/28/2002", "4/3/2002"));
    RunQueued();
}

TEST_F(frmReportTest, WithoutAWeightTheUserAndTheProfileStayAsTheyWere) {
    App().AppInfo.AUTOUPDATERDI = true;
    EatCalories(1000, Today);
    const auto profile = Rows(UserDB(), QStringLiteral("SELECT * FROM profiles"));
    Open();
    EXPECT_EQ(User::Current().CurrentWeight, 200);
    EXPECT_EQ(Rows(UserDB(), QStringLiteral("SELECT * FROM profiles")), profile);
    ExpectAlert(NoWeight("3/28/2002", "4/3/2002"));
    RunQueued();
}

TEST_F(frmReportTest, WithWeightAndFoodTheUserHasThePresentWeightAgain) {
    App().AppInfo.AUTOUPDATERDI = true;
    LogWeek();
    Open();
    EXPECT_EQ(User::Current().CurrentWeight, 200);
    EXPECT_EQ(Users(QStringLiteral("SELECT current_weight FROM profiles")), 200);
    EXPECT_EQ(Caption(*Bars(), "ucHeader1"), QStringLiteral(" Percent RDI (avg weight: 153 lbs)"));
}

TEST_F(frmReportTest, WithWeightAndNoFoodTheUserKeepsTheAverage) {
    App().AppInfo.AUTOUPDATERDI = true;
    Weigh(150, Today);
    Weigh(153, Today.addDays(-1));
    Open();
    EXPECT_EQ(User::Current().CurrentWeight, 152); // 151.5, half to even
    EXPECT_EQ(Users(QStringLiteral("SELECT current_weight FROM profiles")), 152);
    EXPECT_EQ(PieText(), QStringLiteral("No data to chart"));
    EXPECT_EQ(Line()->Points().size(), 2U);
}

// ---- the views

TEST_F(frmReportTest, EachButtonShowsItsView) {
    LogWeek();
    Open();
    const std::array<const char*, 3> views[] = {{"cmdPie", "ucPie", "1"},
                                                {"cmdLine", "ucLine", "2"},
                                                {"cmdVals", "values", "3"},
                                                {"cmdBar", "bars", "0"}};
    for (const auto& [button, view, state] : views) {
        Press(button);
        EXPECT_EQ(Views(), QLatin1String(view));
        EXPECT_EQ(ChosenButton(), QLatin1String(button));
        report->close();
        EXPECT_EQ(GetRegValue(StateSetting), QLatin1String(state));
        report->show();
    }
}

TEST_F(frmReportTest, OpensWithTheStoredView) {
    LogWeek();
    const std::pair<const char*, const char*> views[] = {{"", "bars"},    {"0", "bars"},
                                                         {"1", "ucPie"},  {"2", "ucLine"},
                                                         {"3", "values"}, {" 2 ", "ucLine"}};
    for (const auto& [state, view] : views) {
        SetRegValue(StateSetting, QLatin1String(state));
        Open();
        EXPECT_EQ(Views(), QLatin1String(view)) << state;
    }
}

TEST_F(frmReportTest, AnEmptySettingIsWrittenBackAsZero) {
    LogWeek();
    Open();
    report->close();
    EXPECT_EQ(GetRegValue(StateSetting), QStringLiteral("0"));
}

TEST_F(frmReportTest, AnUnknownNumberLeavesTheViewsAsDesignedAndIsWrittenBack) {
    LogWeek();
    for (const char* state : {"7", "-1", "4"}) {
        SetRegValue(StateSetting, QLatin1String(state));
        Open();
        EXPECT_EQ(Views(), QStringLiteral("bars"));
        EXPECT_EQ(ChosenButton(), QString());
        report->close();
        EXPECT_EQ(GetRegValue(StateSetting), QLatin1String(state));
    }
}

TEST_F(frmReportTest, ATextThatIsNotANumberFailsWhenTheScreenComesForward) {
    LogWeek();
    SetRegValue(StateSetting, QStringLiteral("pie"));
    frmReport screen;
    EXPECT_EQ(FailureOf([&] { screen.DoWinInit(); }), ErrorNumber::TypeMismatch);
}

TEST_F(frmReportTest, ANumberBeyondAWholeNumberFails) {
    LogWeek();
    SetRegValue(StateSetting, QStringLiteral("3000000000"));
    frmReport screen;
    EXPECT_EQ(FailureOf([&] { screen.DoWinInit(); }), ErrorNumber::Overflow);
}

TEST_F(frmReportTest, TheModeOfTheBarsMayDisagreeUntilBarsAreChosen) {
    LogWeek();
    SetRegValue(StateSetting, QStringLiteral("1"));
    SetRegValue(QStringLiteral("REPORTMODE"), QStringLiteral("VALS"));
    Open();
    EXPECT_EQ(Views(), QStringLiteral("ucPie"));
    EXPECT_EQ(Bars()->Mode(), QStringLiteral("VALS"));
    Press("cmdBar");
    EXPECT_EQ(Views(), QStringLiteral("bars"));
    report.reset();
    EXPECT_EQ(GetRegValue(QStringLiteral("REPORTMODE")), QStringLiteral("BARS"));
}

TEST_F(frmReportTest, OnlyTheLineReadsThePeriodWhenItsViewIsChosen) {
    LogWeek();
    Open();
    SetPeriod(QStringLiteral("4/3/2002"), QStringLiteral("4/3/2002"));
    Press("cmdPie");
    EXPECT_EQ(Line()->Points().size(), 7U);
    Press("cmdLine");
    EXPECT_EQ(LineText(), QStringLiteral("4/3/2002 150 lbs"));
    EXPECT_EQ(BarWidth(1), 3000);
    SetPeriod(QStringLiteral("4/2/2002"), QStringLiteral("4/3/2002"));
    Press("cmdLine"); // already shown
    EXPECT_EQ(LineText(), QStringLiteral("4/3/2002 150 lbs"));
}

TEST_F(frmReportTest, DoneLeadsHome) {
    LogWeek();
    Open();
    Press("cmdDone");
    EXPECT_EQ(shownScreens, QStringList{QStringLiteral("frmMain")});
}

// ---- hover

TEST_F(frmReportTest, AButtonUnderThePointerTakesTheHoverLookOffTheOthers) {
    LogWeek();
    Open();
    for (const char* name :
         {"cmdRefresh", "cmdBar", "cmdPie", "cmdLine", "cmdVals", "cmdDone", "cmdRefresh"}) {
        Hover(Find(report.get(), QLatin1String(name)));
        EXPECT_EQ(Lit(), QLatin1String(name));
    }
}

TEST_F(frmReportTest, AMoveOverTheScreenOrAChartTakesTheHoverLookOffAll) {
    LogWeek();
    Open();
    const auto light = [&] {
        for (const char* name : {"cmdBar", "cmdDone", "cmdRefresh"})
            Hover(Find(report.get(), QLatin1String(name)));
        EXPECT_EQ(Lit(), QStringLiteral("cmdRefresh"));
    };
    int x = 5;
    for (const char* view : {"cmdBar", "cmdPie", "cmdLine"}) {
        Press(view);
        light();
        Hover(report.get(), QPoint(++x, 540));
        EXPECT_EQ(Lit(), QString());
    }
    const std::pair<const char*, const char*> charts[] = {
        {"cmdBar", "ucBar"}, {"cmdPie", "ucPie"}, {"cmdLine", "ucLine"}};
    for (const auto& [view, chart] : charts) {
        Press(view);
        light();
        Hover(Find(report.get(), QLatin1String(chart)), QPoint(5, 300));
        EXPECT_EQ(Lit(), QString()) << chart;
    }
}

TEST_F(frmReportTest, AMoveOverTheLabelOrAFieldResetsOnlyRefresh) {
    LogWeek();
    Open();
    for (const char* name : {"aaLBL", "txtStart", "txtEnd"}) {
        Hover(Find(report.get(), QStringLiteral("cmdRefresh")));
        Hover(Find(report.get(), QLatin1String(name)));
        EXPECT_EQ(Lit(), QString()) << name;
        Hover(Find(report.get(), QStringLiteral("cmdDone")));
        Hover(Find(report.get(), QLatin1String(name)), QPoint(3, 4));
        EXPECT_EQ(Lit(), QStringLiteral("cmdDone")) << name;
    }
}

TEST_F(frmReportTest, NamesAreComparedExactly) {
    LogWeek();
    Open();
    Hover(Find(report.get(), QStringLiteral("cmdDone")));
    report->AllOff(QStringLiteral("cmdDone"));
    EXPECT_EQ(Lit(), QString());
    Hover(Find(report.get(), QStringLiteral("cmdDone")));
    report->AllOff(QStringLiteral("cmddone"));
    EXPECT_EQ(Lit(), QStringLiteral("cmdDone"));
}
