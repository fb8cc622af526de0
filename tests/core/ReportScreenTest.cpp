#include "core/CoreTest.h"

#include "analysis/ui/ucLineChart.h"
#include "core/Navigation.h"
#include "core/Screens.h"
#include "core/frmHOME.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Seams.h"
#include "runtime/Settings.h"
#include "toolkit/MousePointer.h"
#include "toolkit/ucButtonA.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPointer>

namespace {

const QString NoWeight = QStringLiteral(
    "There is no weight entry from 3/28/2002 to 4/3/2002, so the percent bars and the average "
    "values of this period cannot be worked out. Enter a weight for one of its days on the screen "
    "\"Daily Details\", in the field \"Enter today's weight:\".");

const QString InvalidDate =
    QStringLiteral("Please enter a valid start date for the report in the format "
                   "'month/day/year' (eg 4/3/2002).");

/// The report in the real frame.
class ReportScreenTest : public CoreTest {
protected:
    void SetUp() override {
        CoreTest::SetUp();
        OpenEmptyDatabases();
        AddUser();
        Clock::SetToday(QDate(2002, 4, 3));
        App().CurrentDate = QDate(2002, 4, 3);
        RegisterScreens(TheNavigation());
        ::ShowHome();
    }
    QWidget* Show(const char* name) {
        auto* screen = qobject_cast<QWidget*>(::ShowScreen(QLatin1String(name)));
        RunDeferredDeletes();
        return screen;
    }
    static QString BarsCaption(QWidget* report) {
        return Find(Find(report, QStringLiteral("ucBar")), QStringLiteral("ucHeader1"))
            ->property("Caption")
            .toString();
    }
    void Weigh() {
        Users(QStringLiteral("INSERT INTO USER_WEIGHTS VALUES (1, '2002-04-03', 150)"));
    }
};

} // namespace

TEST_F(ReportScreenTest, TheNavigationButtonBringsIt) {
    Weigh();
    auto* button = Find<ucButtonA>(TheNavigation().Frame(), QStringLiteral("cmdReport"));
    EXPECT_TRUE(button->isEnabled());
    Click(button);
    EXPECT_EQ(TheNavigation().Front()->objectName(), QStringLiteral("frmReport"));
    EXPECT_EQ(App().WindowTitle, QStringLiteral("Report"));
}

TEST_F(ReportScreenTest, WithoutAWeightItStandsInFrontBeforeTheOneMessageComes) {
    QWidget* report = Show("frmReport");
    ASSERT_NE(report, nullptr);
    EXPECT_TRUE(report->isVisible());
    EXPECT_FALSE(MousePointer::IsBusy());
    ExpectAlert(NoWeight);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

TEST_F(ReportScreenTest, EachLoadSaysItOnceAndAHiddenScreenThatReturnsDoesNot) {
    App().AppInfo.FAST = true;
    Show("frmReport");
    ExpectAlert(NoWeight);
    QCoreApplication::sendPostedEvents();
    Show("frmDay");
    Show("frmReport");
    QCoreApplication::sendPostedEvents();
    App().AppInfo.FAST = false;
    Show("frmDay");
    Show("frmReport");
    ExpectAlert(NoWeight);
    QCoreApplication::sendPostedEvents();
}

TEST_F(ReportScreenTest, AReportThatIsLeftAtOnceSaysNothing) {
    Show("frmReport");
    Show("frmDay");
    QCoreApplication::sendPostedEvents();
}

TEST_F(ReportScreenTest, TheViewComesBackWhenTheScreenIsBroughtAgain) {
    Weigh();
    QWidget* report = Show("frmReport");
    Click(Find(report, QStringLiteral("cmdLine")));
    report = Show("frmReport"); // rebuilt while it stands in front
    EXPECT_TRUE(Find(report, QStringLiteral("ucLine"))->isVisible());
    Click(Find(report, QStringLiteral("cmdPie")));
    Show("frmDay");
    report = Show("frmReport");
    EXPECT_TRUE(Find(report, QStringLiteral("ucPie"))->isVisible());
}

TEST_F(ReportScreenTest, TheBarsModeIsKeptBehindThePieWhenTheScreenIsBroughtAgain) {
    Weigh();
    QWidget* report = Show("frmReport");
    Click(Find(report, QStringLiteral("cmdVals")));
    Click(Find(report, QStringLiteral("cmdPie")));
    report = Show("frmReport"); // rebuilt while it stands in front
    EXPECT_EQ(Find(report, QStringLiteral("ucBar"))->property("Mode").toString(),
              QStringLiteral("VALS"));
    Show("frmDay");
    EXPECT_EQ(GetRegValue(QStringLiteral("REPORTMODE")), QStringLiteral("VALS"));
}

TEST_F(ReportScreenTest, TheViewIsKeptAtTheEndOfTheProgram) {
    Weigh();
    Click(Find(Show("frmReport"), QStringLiteral("cmdVals")));
    TheNavigation().CloseAll();
    EXPECT_EQ(GetRegValue(QStringLiteral("REPORTSTATE")), QStringLiteral("3"));
}

TEST_F(ReportScreenTest, WithFastAReturningLineReadsThePeriodAnew) {
    App().AppInfo.FAST = true;
    Weigh();
    QWidget* report = Show("frmReport");
    Click(Find(report, QStringLiteral("cmdLine")));
    Users(QStringLiteral("INSERT INTO USER_WEIGHTS VALUES (1, '2002-04-02', 151)"));
    Show("frmDay");
    EXPECT_EQ(Show("frmReport"), report);
    EXPECT_EQ(Find<ucLineChart>(report, QStringLiteral("ucLine"))->Points().size(), 2U);
}

TEST_F(ReportScreenTest, WithFastAReturningReportKeepsThePeriodAndHasTheFiguresOfNow) {
    App().AppInfo.FAST = true;
    Weigh();
    QWidget* report = Show("frmReport");
    auto* start = Find<QLineEdit>(report, QStringLiteral("txtStart"));
    start->setText(QStringLiteral("4/1/2002"));
    Users(QStringLiteral("UPDATE USER_WEIGHTS SET Weight = 170"));
    Show("frmDay");
    Show("frmReport");
    EXPECT_EQ(start->text(), QStringLiteral("4/1/2002"));
    EXPECT_EQ(BarsCaption(report), QStringLiteral(" Percent RDI (avg weight: 170 lbs)"));
}

TEST_F(ReportScreenTest, WithFastTheViewThatWasLeftComesBack) {
    App().AppInfo.FAST = true;
    Weigh();
    QWidget* report = Show("frmReport");
    const std::pair<const char*, const char*> views[] = {
        {"cmdPie", "ucPie"}, {"cmdLine", "ucLine"}, {"cmdVals", "picVals"}, {"cmdBar", "ucBar"}};
    for (const auto& [button, chart] : views) {
        Click(Find(report, QLatin1String(button)));
        Show("frmDay");
        EXPECT_EQ(Show("frmReport"), report);
        EXPECT_TRUE(Find(report, QLatin1String(chart))->isVisible()) << chart;
        EXPECT_TRUE(Find(report, QLatin1String(button))->property("Chosen").toBool()) << button;
    }
}

TEST_F(ReportScreenTest, WithFastAWeightThatHasGoneIsToldOnceOnComingBack) {
    App().AppInfo.FAST = true;
    Weigh();
    Show("frmReport");
    QCoreApplication::sendPostedEvents();
    Users(QStringLiteral("DELETE FROM USER_WEIGHTS"));
    for (const bool news : {true, false}) {
        Show("frmDay");
        Show("frmReport");
        if (news)
            ExpectAlert(NoWeight);
        QCoreApplication::sendPostedEvents();
    }
}

TEST_F(ReportScreenTest, AnInvalidDateIsToldWhicheverViewIsChosenAndNothingChanges) {
    Weigh();
    QWidget* report = Show("frmReport");
    for (const char* field : {"txtStart", "txtEnd"}) {
        auto* date = Find<QLineEdit>(report, QLatin1String(field));
        const QString valid = date->text();
        date->setText(QStringLiteral("rubbish"));
        for (const char* view : {"cmdPie", "cmdVals", "cmdLine", "cmdBar"}) {
            ExpectAlert(InvalidDate);
            Click(Find(report, QLatin1String(view)));
            EXPECT_TRUE(Find(report, QStringLiteral("ucBar"))->isVisible()) << view;
        }
        date->setText(valid);
    }
    EXPECT_EQ(endings, QList<int>{});
    Click(Find(report, QStringLiteral("cmdLine")));
    EXPECT_TRUE(Find(report, QStringLiteral("ucLine"))->isVisible());
}

TEST_F(ReportScreenTest, WithFastAReportWithAnInvalidDateComesBackAsItWasLeftAndSaysSo) {
    App().AppInfo.FAST = true;
    Weigh();
    QWidget* report = Show("frmReport");
    QCoreApplication::sendPostedEvents();
    for (const char* view : {"cmdBar", "cmdPie", "cmdVals", "cmdLine"}) {
        auto* start = Find<QLineEdit>(report, QStringLiteral("txtStart"));
        start->setText(QStringLiteral("4/1/2002"));
        Click(Find(report, QLatin1String(view)));
        start->setText(QStringLiteral("rubbish"));
        Show("frmDay");
        EXPECT_EQ(Show("frmReport"), report);
        EXPECT_EQ(App().WindowTitle, QStringLiteral("Report"));
        EXPECT_TRUE(Find(report, QLatin1String(view))->property("Chosen").toBool()) << view;
        EXPECT_EQ(start->text(), QStringLiteral("rubbish"));
        ExpectAlert(InvalidDate);
        QCoreApplication::sendPostedEvents();
    }
    EXPECT_TRUE(Find(report, QStringLiteral("ucLine"))->isVisible());
    EXPECT_EQ(Find<ucLineChart>(report, QStringLiteral("ucLine"))->Points().size(), 1U);
    EXPECT_EQ(endings, QList<int>{});
}

TEST_F(ReportScreenTest, AReportWithAnInvalidDateOutlivesTheProfileOverIt) {
    Weigh();
    QWidget* report = Show("frmReport");
    QCoreApplication::sendPostedEvents();
    Click(Find(report, QStringLiteral("cmdLine")));
    Find<QLineEdit>(report, QStringLiteral("txtStart"))->setText(QStringLiteral("rubbish"));
    ChooseFromMenu(7);
    EXPECT_FALSE(report->isVisible());
    Click(Find(TheNavigation().Frame(), QStringLiteral("cmdCancel")));
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(Find(report, QStringLiteral("ucLine"))->isVisible());
    EXPECT_EQ(endings, QList<int>{});
}

TEST_F(ReportScreenTest, ARefusedDateDoesNotOutliveTheScreen) {
    Weigh();
    QWidget* report = Show("frmReport");
    Click(Find(report, QStringLiteral("cmdLine")));
    Find<QLineEdit>(report, QStringLiteral("txtStart"))->setText(QStringLiteral("rubbish"));
    Show("frmDay");
    report = Show("frmReport");
    EXPECT_TRUE(Find(report, QStringLiteral("ucLine"))->isVisible());
    EXPECT_EQ(Find<QLineEdit>(report, QStringLiteral("txtStart"))->text(),
              QStringLiteral("03/28/2002"));
}

TEST_F(ReportScreenTest, ATextInPlaceOfTheViewLeavesTheScreenInFront) {
    Weigh();
    SetRegValue(QStringLiteral("REPORTSTATE"), QStringLiteral("rubbish"));
    QWidget* report = Show("frmReport");
    EXPECT_TRUE(report->isVisible());
    EXPECT_TRUE(Find(report, QStringLiteral("ucBar"))->isVisible());
    Show("frmReport");
    EXPECT_TRUE(Find(TheNavigation().Front(), QStringLiteral("ucBar"))->isVisible());
    EXPECT_FALSE(MousePointer::IsBusy());
}
