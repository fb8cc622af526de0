#include "core/CoreTest.h"

#include "core/Navigation.h"
#include "core/frmHOME.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/RuntimeError.h"
#include "runtime/Seams.h"
#include "toolkit/MousePointer.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QTest>

class NavigationTest : public CoreTest {
protected:
    void SetUp() override {
        CoreTest::SetUp();
        AddLoggedScreen(QStringLiteral("frmDay"), QStringLiteral("Daily Details"));
        AddLoggedScreen(QStringLiteral("frmReport"), QStringLiteral("Reports"));
        AddLoggedScreen(QStringLiteral("frmProfile"), QStringLiteral("My Profile"));
        ::ShowHome();
        ScreenLog().clear();
    }
    void TearDown() override {
        MousePointer::SetNormal();
        CoreTest::TearDown();
    }
    ScreenForm* Show(const char* name) {
        QObject* screen = ::ShowScreen(QLatin1String(name));
        RunDeferredDeletes();
        return qobject_cast<ScreenForm*>(screen);
    }
    void CloseFront() {
        TheNavigation().Front()->close();
        QCoreApplication::sendPostedEvents();
        RunDeferredDeletes();
    }
    frmHOME* Frame() { return TheNavigation().Frame(); }
    QString Title() {
        return Find(Frame(), QStringLiteral("aaWindow"))->property("Caption").toString();
    }
    QStringList TakeLog() { return std::exchange(ScreenLog(), {}); }
};

using Log = QStringList;

TEST_F(NavigationTest, AScreenIsMadeShownTitledAndBroughtUpToDateInThisOrder) {
    ScreenForm* day = Show("frmDay");
    ASSERT_NE(day, nullptr);
    EXPECT_EQ(TakeLog(),
              (Log{"frmDay made", "frmDay BeforeShow", "frmDay shown", "frmDay DoWinInit"}));
    EXPECT_TRUE(day->isVisible());
    EXPECT_EQ(Title(), QStringLiteral("Daily Details"));
    EXPECT_EQ(App().WindowTitle, QStringLiteral("Daily Details"));
    EXPECT_EQ(day->geometry(), Frame()->picNest()->geometry());
    EXPECT_FALSE(MousePointer::IsBusy());
}

TEST_F(NavigationTest, WithoutFastLeavingAScreenClosesItAndReturningRebuildsIt) {
    Show("frmDay");
    Show("frmReport");
    TakeLog();
    Show("frmDay");
    EXPECT_EQ(TakeLog(), (Log{"frmDay made", "frmReport hidden", "frmDay BeforeShow",
                              "frmDay shown", "frmDay DoWinInit", "frmReport gone"}));
    EXPECT_EQ(Frame()->findChildren<ScreenForm*>().size(), 1);
}

TEST_F(NavigationTest, WithoutFastTheScreenInFrontIsRebuiltToo) {
    const QPointer<ScreenForm> first = Show("frmDay");
    const QPointer<ScreenForm> second = Show("frmDay");
    EXPECT_TRUE(first.isNull());
    EXPECT_FALSE(second.isNull());
}

TEST_F(NavigationTest, WithFastScreensStayLoadedAndHidden) {
    App().AppInfo.FAST = true;
    ScreenForm* day = Show("frmDay");
    ScreenForm* report = Show("frmReport");
    EXPECT_FALSE(day->isVisible());
    EXPECT_TRUE(report->isVisible());
    TakeLog();
    EXPECT_EQ(Show("frmDay"), day);
    EXPECT_EQ(TakeLog(),
              (Log{"frmReport hidden", "frmDay BeforeShow", "frmDay shown", "frmDay DoWinInit"}));
    EXPECT_EQ(Frame()->findChildren<ScreenForm*>().size(), 2);
}

TEST_F(NavigationTest, ANewValueOfFastCountsAtTheNextChangeOfScreen) {
    const QPointer<ScreenForm> day = Show("frmDay");
    App().AppInfo.FAST = true;
    Show("frmReport");
    ASSERT_FALSE(day.isNull());
    App().AppInfo.FAST = false;
    Show("frmReport");
    EXPECT_TRUE(day.isNull());
}

class ProfileOverDay : public NavigationTest, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        NavigationTest::SetUp();
        App().AppInfo.FAST = GetParam();
    }
};
INSTANTIATE_TEST_SUITE_P(FastOffAndOn, ProfileOverDay, ::testing::Bool());

TEST_P(ProfileOverDay, ClosingItShowsTheDayAgainWithItsTitle) {
    ScreenForm* day = Show("frmDay");
    Show("frmProfile");
    EXPECT_EQ(Title(), QStringLiteral("My Profile"));
    EXPECT_FALSE(day->isVisible());
    TakeLog();
    CloseFront();
    EXPECT_EQ(TheNavigation().Front(), day);
    EXPECT_TRUE(day->isVisible());
    EXPECT_EQ(TakeLog(), (Log{"frmProfile hidden", "frmDay shown", "frmProfile gone"}));
    EXPECT_EQ(Title(), QStringLiteral("Daily Details"));
    EXPECT_EQ(App().WindowTitle, QStringLiteral("Daily Details"));
    EXPECT_TRUE(Find(Frame(), QStringLiteral("cmdDay"))->property("Chosen").toBool());
}

TEST_P(ProfileOverDay, OpeningItAgainKeepsTheDayBeneath) {
    ScreenForm* day = Show("frmDay");
    ScreenForm* profile = Show("frmProfile");
    EXPECT_EQ(Show("frmProfile"), profile);
    CloseFront();
    EXPECT_EQ(TheNavigation().Front(), day);
    EXPECT_TRUE(day->isVisible());
}

TEST_P(ProfileOverDay, LeavingItForAnotherScreenForgetsWhatItCovered) {
    Show("frmDay");
    Show("frmProfile");
    ScreenForm* report = Show("frmReport");
    EXPECT_EQ(TheNavigation().Front(), report);
    EXPECT_TRUE(report->isVisible());
    for (ScreenForm* other : Frame()->findChildren<ScreenForm*>())
        EXPECT_EQ(other->isVisible(), other == report);
    EXPECT_EQ(Title(), QStringLiteral("Reports"));
}

TEST_P(ProfileOverDay, AScreenThatComesInsteadIsNotCovered) {
    Show("frmDay");
    Show("frmProfile");
    TheNavigation().Front()->close();
    ScreenForm* report = qobject_cast<ScreenForm*>(::ShowScreen(QStringLiteral("frmReport")));
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(TheNavigation().Front(), report);
    EXPECT_TRUE(report->isVisible());
    EXPECT_EQ(Title(), QStringLiteral("Reports"));
}

TEST_F(NavigationTest, AScreenThatClosesWithNothingBeneathLeavesAnEmptyTitleAndNoButtonChosen) {
    Show("frmProfile");
    CloseFront();
    EXPECT_EQ(TheNavigation().Front(), nullptr);
    EXPECT_EQ(Title(), QString());
    for (const char* button : {"cmdCal", "cmdDay", "cmdCommunity"})
        EXPECT_FALSE(Find(Frame(), QLatin1String(button))->property("Chosen").toBool()) << button;
    EXPECT_NE(Show("frmProfile"), nullptr);
}

TEST_F(NavigationTest, HidingTheFrameForgetsNoScreen) {
    ScreenForm* day = Show("frmDay");
    Frame()->hide();
    Frame()->show();
    EXPECT_EQ(TheNavigation().Front(), day);
    EXPECT_EQ(::LoadScreen(QStringLiteral("frmDay")), day);
}

TEST_F(NavigationTest, GatherWindowsPlacesHiddenScreensToo) {
    App().AppInfo.FAST = true;
    ScreenForm* day = Show("frmDay");
    ScreenForm* report = Show("frmReport");
    day->move(5, 5);
    report->move(7, 7);
    TheNavigation().GatherWindows();
    EXPECT_EQ(day->geometry(), Frame()->picNest()->geometry());
    EXPECT_EQ(report->geometry(), Frame()->picNest()->geometry());
}

TEST_F(NavigationTest, MovingTheFrameKeepsTheScreenInTheNest) {
    ScreenForm* day = Show("frmDay");
    Frame()->move(240, 130);
    EXPECT_EQ(day->mapToGlobal(QPoint()), Frame()->picNest()->mapToGlobal(QPoint()));
}

TEST_F(NavigationTest, LoadScreenMakesItWithoutShowingIt) {
    QObject* report = ::LoadScreen(QStringLiteral("frmReport"));
    ASSERT_NE(report, nullptr);
    EXPECT_EQ(TakeLog(), (Log{"frmReport made"}));
    EXPECT_EQ(::LoadScreen(QStringLiteral("frmReport")), report);
}

TEST_F(NavigationTest, AScreenThatIsNotRegisteredIsNull) {
    EXPECT_FALSE(TheNavigation().HasScreen(QStringLiteral("frmRecipeManager")));
    EXPECT_EQ(::LoadScreen(QStringLiteral("frmRecipeManager")), nullptr);
    ScreenForm* day = Show("frmDay");
    EXPECT_EQ(Show("frmRecipeManager"), nullptr);
    EXPECT_EQ(TheNavigation().Front(), day);
    EXPECT_FALSE(MousePointer::IsBusy());
}

TEST_F(NavigationTest, AFailureInAStepSkipsTheRestWithoutAMessageAndLeavesThePointer) {
    LoggedScreen::failing = QStringLiteral("frmReport");
    Show("frmReport");
    EXPECT_EQ(Title(), QStringLiteral("Reports"));
    EXPECT_TRUE(MousePointer::IsBusy());
    EXPECT_NE(Show("frmDay"), nullptr);
    EXPECT_FALSE(MousePointer::IsBusy());
    EXPECT_EQ(Title(), QStringLiteral("Daily Details"));
}

TEST_F(NavigationTest, AScreenThatCannotBeMadeLeavesTheOneInFrontAsItIs) {
    for (const char* name : {"frmReport", "frmProfile"}) {
        ScreenForm* day = Show("frmDay");
        TheNavigation().Register(name, [](QWidget*) -> ScreenForm* {
            throw RuntimeError(ErrorNumber::NoCurrentRecord, QStringLiteral("no current record"));
        });
        EXPECT_EQ(Show(name), nullptr);
        EXPECT_EQ(TheNavigation().Front(), day);
        EXPECT_TRUE(day->isVisible());
        EXPECT_EQ(Title(), QStringLiteral("Daily Details"));
        EXPECT_TRUE(MousePointer::IsBusy());
    }
}

TEST_F(NavigationTest, WhatIsBeingTypedIsTakenOverBeforeTheScreenGoes) {
    ScreenForm* day = Show("frmDay");
    auto* field = new QLineEdit(day);
    field->show();
    Activate(Frame());
    field->setFocus();
    ASSERT_TRUE(field->hasFocus());
    QTest::keyClicks(field, QStringLiteral("150"));
    int left = 0;
    QObject::connect(field, &QLineEdit::editingFinished, [&] {
        ++left;
        EXPECT_TRUE(day->isVisible());
    });
    Show("frmReport");
    EXPECT_EQ(left, 1);
}

TEST_F(NavigationTest, WhatALeftFieldHasToSayIsSaidUnderTheNormalPointer) {
    for (const char* next : {"frmReport", "frmProfile"}) {
        auto* field = new QLineEdit(Show("frmDay"));
        field->show();
        Activate(Frame());
        field->setFocus();
        bool busy = true;
        QObject::connect(field, &QLineEdit::editingFinished,
                         [&] { busy = MousePointer::IsBusy(); });
        QTest::keyClicks(field, QStringLiteral("150"));
        Show(next);
        EXPECT_FALSE(busy) << next;
    }
}

TEST_F(NavigationTest, AScreenThatTheFramesOwnLoadingBringsIsMadeOnce) {
    TheNavigation().Reset();
    AddLoggedScreen(QStringLiteral("frmMain"), QStringLiteral("Main"));
    User::Current().UID = 1;
    ScreenLog().clear();
    QObject* home = ::LoadScreen(QStringLiteral("frmMain"));
    EXPECT_EQ(ScreenLog().count(QStringLiteral("frmMain made")), 1);
    EXPECT_EQ(TheNavigation().Front(), home);
}

TEST_F(NavigationTest, AMessageStandsOverTheFrameWithOrWithoutAnOwner) {
    TheNavigation().InstallSeams();
    for (QWidget* owner : {static_cast<QWidget*>(nullptr), static_cast<QWidget*>(Show("frmDay"))})
        WithModal(
            [this](QWidget* alert) {
                EXPECT_EQ(alert->objectName(), QStringLiteral("frmAlert"));
                EXPECT_EQ(alert->parentWidget(), Frame());
                Click(Find(alert, QStringLiteral("cmdOK")));
            },
            [owner] { EXPECT_TRUE(::ShowAlert(QStringLiteral("Hello"), owner, true)); });
}

TEST_F(NavigationTest, AMessageBeforeThereIsAFrameStandsAlone) {
    TheNavigation().Reset();
    TheNavigation().InstallSeams();
    WithModal([](QWidget* alert) { EXPECT_EQ(alert->parentWidget(), nullptr); },
              [] { EXPECT_FALSE(::ShowAlert(QStringLiteral("Hello"))); });
    EXPECT_FALSE(TheNavigation().HasFrame());
}

TEST_F(NavigationTest, TheTitleFloatsAboveTheScreen) {
    ScreenForm* day = Show("frmDay");
    auto* title = Find(Frame(), QStringLiteral("aaWindow"));
    const QObjectList children = Frame()->children();
    EXPECT_GT(children.indexOf(title), children.indexOf(day));
    EXPECT_TRUE(day->geometry().contains(title->geometry()));
}
