#include "core/CoreTest.h"

#include "core/Community.h"
#include "core/FramePlace.h"
#include "core/Navigation.h"
#include "core/OpenURL.h"
#include "core/frmHOME.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/Seams.h"
#include "toolkit/ucButtonA.h"

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QTimer>

namespace {

struct ButtonRow {
    const char* name;
    const char* screen;
    const char* hover;
};

constexpr ButtonRow ScreenButtons[] = {
    {"cmdCal", "frmMain", "Main"},
    {"cmdDay", "frmDay", "Daily Details"},
    {"cmdReport", "frmReport", "Reports"},
    {"cmdCustomFoods", "frmFoodList", "Custom Foods"},
    {"cmdRecipes", "frmRecipeManager", "Recipe Manager"},
};

} // namespace

class frmHOMETest : public CoreTest {
protected:
    void RegisterAll() {
        for (const ButtonRow& row : ScreenButtons)
            AddLoggedScreen(QLatin1String(row.screen), QLatin1String(row.hover));
    }
    frmHOME* Open() {
        ::ShowHome();
        return Frame();
    }
    frmHOME* Frame() { return TheNavigation().Frame(); }
    ucButtonA* Button(const char* name) { return Find<ucButtonA>(Frame(), QLatin1String(name)); }
    /// In the middle of its upper, left, lower and right end.
    QList<QColor> ColoursAtTheEnds() {
        const QImage drawn = Grab(Frame());
        const QPoint middle = drawn.rect().center(), last = drawn.rect().bottomRight();
        return {drawn.pixelColor(middle.x(), 0), drawn.pixelColor(0, middle.y()),
                drawn.pixelColor(middle.x(), last.y()), drawn.pixelColor(last.x(), middle.y())};
    }
    QString Title() {
        return Find(Frame(), QStringLiteral("aaWindow"))->property("Caption").toString();
    }
};

TEST_F(frmHOMETest, TheFrameIsBorderlessAndOfItsFixedSize) {
    Open();
    EXPECT_EQ(Frame()->size(), QSize(850, 620));
    EXPECT_TRUE(Frame()->windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(Frame()->windowTitle(), QStringLiteral("Halvane"));
    EXPECT_EQ(Frame()->picNest()->geometry(), QRect(84, 58, 850 - 84, 620 - 58));
    EXPECT_FALSE(Frame()->windowIcon().isNull());
}

TEST_F(frmHOMETest, InHighContrastTheWindowHasAnEdgeAllAroundAboveEachScreen) {
    UseStyle(StyleKind::HighContrast);
    RegisterAll();
    Open();
    ::ShowScreen(QStringLiteral("frmDay"));
    EXPECT_EQ(ColoursAtTheEnds(), QList<QColor>(4, TheStyle().frame));
    UseStyle(StyleKind::Light);
}

TEST_F(frmHOMETest, InTheOtherStylesTheWindowHasNoEdge) {
    RegisterAll();
    Open();
    ::ShowScreen(QStringLiteral("frmDay"));
    EXPECT_FALSE(ColoursAtTheEnds().contains(TheStyle().frame));
    EXPECT_TRUE(Find(Frame(), QStringLiteral("windowEdge"))->isHidden());
}

TEST_F(frmHOMETest, EachButtonBringsItsScreenAndIsThenChosen) {
    RegisterAll();
    Open();
    for (const ButtonRow& row : ScreenButtons) {
        Click(Button(row.name));
        EXPECT_EQ(TheNavigation().Front()->objectName(), QLatin1String(row.screen));
        for (const ButtonRow& other : ScreenButtons)
            EXPECT_EQ(Button(other.name)->Chosen(), &other == &row) << row.name << other.name;
    }
}

TEST_F(frmHOMETest, TheCommunityButtonAndTheLogoOpenTheCommunityPage) {
    QList<QUrl> opened;
    SetBrowser([&](const QUrl& address) {
        opened << address;
        return true;
    });
    Open();
    Click(Button("cmdCommunity"));
    Click(Button("cmdLogo"));
    SetBrowser({});
    const QUrl page(Community::Address());
    EXPECT_EQ(opened, (QList<QUrl>{page, page}));
    Hover(Button("cmdCommunity"));
    EXPECT_EQ(Title(), QStringLiteral("Online Community"));
    Hover(Button("cmdLogo"));
    EXPECT_EQ(Title(), QStringLiteral("Halvane"));
}

TEST_F(frmHOMETest, HoveringAButtonShowsItsTextAndTakesTheHighlightOffTheOthers) {
    RegisterAll();
    Open();
    ::ShowScreen(QStringLiteral("frmDay"));
    for (const ButtonRow& row : ScreenButtons) {
        Hover(Button(row.name));
        EXPECT_EQ(Title(), QLatin1String(row.hover));
        for (const ButtonRow& other : ScreenButtons)
            EXPECT_EQ(Button(other.name)->Shown(),
                      &other == &row ? QStringLiteral("img_ROLL") : QStringLiteral("img_NORM"))
                << row.name << other.name;
    }
}

TEST_F(frmHOMETest, LeavingAButtonBringsTheScreensTitleBack) {
    RegisterAll();
    Open();
    ::ShowScreen(QStringLiteral("frmDay"));
    Hover(Button("cmdReport"));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(Button("cmdReport"), &leave);
    EXPECT_EQ(Title(), QStringLiteral("Daily Details"));
    EXPECT_EQ(Button("cmdReport")->Shown(), QStringLiteral("img_NORM"));
}

TEST_F(frmHOMETest, MovingOverTheTitleTheBandOrTheTitleBarTakesAllHighlightsOff) {
    RegisterAll();
    Open();
    ::ShowScreen(QStringLiteral("frmDay"));
    for (const char* name : {"aaWindow", "picFrameTop", "ucTitle"}) {
        Hover(Button("cmdReport"));
        EXPECT_EQ(Title(), QStringLiteral("Reports"));
        Hover(Find(Frame(), QLatin1String(name)), QPoint(300, 5));
        EXPECT_EQ(Title(), QStringLiteral("Daily Details")) << name;
        EXPECT_EQ(Button("cmdReport")->Shown(), QStringLiteral("img_NORM")) << name;
    }
}

TEST_F(frmHOMETest, AllOffComparesNamesWithoutRegardToCaseAndKeepsTheTitle) {
    RegisterAll();
    Open();
    ::ShowScreen(QStringLiteral("frmDay"));
    Hover(Button("cmdCal"));
    Frame()->AllOff(QStringLiteral("cmdcal"));
    EXPECT_EQ(Button("cmdCal")->Shown(), QStringLiteral("img_ROLL"));
    EXPECT_EQ(Title(), QStringLiteral("Main"));
    Frame()->AllOff(QString());
    EXPECT_EQ(Button("cmdCal")->Shown(), QStringLiteral("img_NORM"));
    EXPECT_EQ(Title(), QStringLiteral("Daily Details"));
}

TEST_F(frmHOMETest, ItsTimerTakesTheHighlightsOffWhereThePointerIsOutside) {
    RegisterAll();
    Open()->move(400, 300);
    QCursor::setPos(1, 1);
    auto* cleanUp = Find<QTimer>(Frame(), QStringLiteral("cleanUp"));
    EXPECT_EQ(cleanUp->interval(), 250);
    Hover(Button("cmdCal"));
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return Button("cmdCal")->Shown() == QStringLiteral("img_NORM"); }));
}

TEST_F(frmHOMETest, TheMinimiseButtonMinimisesAndThePlaceIsKept) {
    Open()->move(120, 90);
    Click(Button("cmdMin"));
    EXPECT_TRUE(Frame()->isMinimized());
    EXPECT_EQ(Frame()->Place(), QPoint(120, 90));
}

TEST_F(frmHOMETest, EveryWayToCloseAsksToQuit) {
    Open();
    int asked = 0;
    QObject::connect(Frame(), &frmHOME::QuitRequested, [&] { ++asked; });
    Click(Button("cmdQuit"));
    EXPECT_EQ(asked, 1);
    Activate(Frame());
    QTest::keyClick(Frame(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(asked, 2);
    QTest::keyClick(Frame(), Qt::Key_F4, Qt::AltModifier);
    EXPECT_EQ(asked, 3);
    Frame()->close();
    EXPECT_EQ(asked, 4);
}

TEST_F(frmHOMETest, ThePreferencesOpenOverItByTheirKeys) {
    Activate(Open());
    WithModal(
        [this](QWidget* dialog) {
            EXPECT_EQ(dialog->objectName(), QStringLiteral("frmPrefs"));
            EXPECT_EQ(dialog->parentWidget(), Frame());
            dialog->close();
        },
        [this] { QTest::keyClick(Frame(), Qt::Key_Comma, Qt::ControlModifier); });
}

TEST_F(frmHOMETest, ItTakesItsStoredPlaceInTwips) {
    App().AppInfo.UILEFT = Twips::FromPixels(37);
    App().AppInfo.UITOP = Twips::FromPixels(21);
    Open();
    EXPECT_EQ(Frame()->pos(), QPoint(37, 21));
}

TEST_F(frmHOMETest, AnEmptyStorePlacesItInTheUpperLeftCorner) {
    Open();
    EXPECT_EQ(Frame()->pos(), QPoint(0, 0));
}

TEST_F(frmHOMETest, AStoredPlaceOutsideEveryScreenBecomesTheMiddleOfThePrimaryOne) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize size(850, 620);
    for (const QPoint far :
         {QPoint(100000, 0), QPoint(0, 100000), QPoint(-900, 0), QPoint(0, -40),
          QPoint(screen.right() - 10, 0), QPoint(-2147483, -2147483), QPoint(0, screen.bottom())}) {
        const QPoint place = PlaceOnScreens(far, size, 34);
        EXPECT_EQ(QRect(place, size).center(), screen.center()) << far.x() << ' ' << far.y();
    }
    for (const QPoint near : {QPoint(0, 0), QPoint(-700, 10), QPoint(screen.right() - 100, 5)})
        EXPECT_EQ(PlaceOnScreens(near, size, 34), near) << near.x() << ' ' << near.y();
}

TEST_F(frmHOMETest, ItShowsTheHomeScreenOnlyWhereThereIsAUser) {
    AddLoggedScreen(QStringLiteral("frmMain"), QStringLiteral("Main"));
    Open();
    EXPECT_EQ(TheNavigation().Front(), nullptr);
    TheNavigation().Reset();
    AddLoggedScreen(QStringLiteral("frmMain"), QStringLiteral("Main"));
    User::Current().UID = 5;
    Open();
    ASSERT_NE(TheNavigation().Front(), nullptr);
    EXPECT_EQ(TheNavigation().Front()->objectName(), QStringLiteral("frmMain"));
    EXPECT_TRUE(TheNavigation().Front()->isVisible());
}

TEST_F(frmHOMETest, TabWalksTitleBarMenuBarAndColumnInReadingOrder) {
    RegisterAll();
    Activate(Open());
    Button("cmdMin")->setFocus(Qt::TabFocusReason);
    QStringList names;
    for (int step = 0; step < 10; ++step) {
        names << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    const QStringList wanted{QStringLiteral("cmdMin"),         QStringLiteral("cmdQuit"),
                             QStringLiteral("lblFile"),        QStringLiteral("lblEdit"),
                             QStringLiteral("lblHelp"),        QStringLiteral("cmdCal"),
                             QStringLiteral("cmdDay"),         QStringLiteral("cmdReport"),
                             QStringLiteral("cmdCustomFoods"), QStringLiteral("cmdRecipes")};
    EXPECT_EQ(names, wanted);
}
