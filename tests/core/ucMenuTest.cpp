#include "core/CoreTest.h"

#include "core/MenuItems.h"
#include "core/MenuLabel.h"
#include "core/Navigation.h"
#include "core/OpenURL.h"
#include "core/frmHOME.h"
#include "core/ucMenu.h"
#include "intake/ui/frmDay.h"
#include "model/User.h"
#include "model/ui/frmProfile.h"
#include "runtime/AppState.h"
#include "runtime/Seams.h"
#include "runtime/Server.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

/// The menu bar in the real frame.
class ucMenuTest : public CoreTest {
protected:
    void SetUp() override {
        CoreTest::SetUp();
        AddLoggedScreen(QStringLiteral("frmMain"), QStringLiteral("Main"));
        AddLoggedScreen(QStringLiteral("frmDay"), QStringLiteral("Daily Details"));
        AddLoggedScreen(QStringLiteral("frmReport"), QStringLiteral("Reports"));
        SetBrowser([this](const QUrl& address) {
            opened << address;
            return true;
        });
        ::ShowHome();
        ::ShowScreen(QStringLiteral("frmMain"));
        Activate(Frame());
        menu = Find<ucMenu>(Frame(), QStringLiteral("ucMenu"));
        ASSERT_NE(menu, nullptr);
    }
    void TearDown() override {
        SetBrowser({});
        CoreTest::TearDown();
    }
    frmHOME* Frame() { return TheNavigation().Frame(); }
    MenuLabel* Label(const char* name) { return Find<MenuLabel>(Frame(), QLatin1String(name)); }
    MenuLabel* Item(int index) {
        return Find<MenuLabel>(Frame(), QStringLiteral("lblMenuItem%1").arg(index));
    }
    /// Only a press: the menu does not wait for the release.
    static void Press(QWidget* control) {
        QTest::mousePress(control, Qt::LeftButton, Qt::NoModifier, control->rect().center());
    }
    /// The names of the visible panels.
    QStringList Panels() {
        QStringList names;
        for (const char* name : {"picFile", "picEdit", "picHelp"})
            if (Find(Frame(), QLatin1String(name))->isVisible())
                names << QLatin1String(name);
        return names;
    }
    QList<int> HilitedItems() {
        QList<int> indices;
        for (int index = 0; index < 13; ++index)
            if (Item(index)->Hilited())
                indices << index;
        return indices;
    }
    void Key(int key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QWidget* target = QApplication::focusWidget() ? QApplication::focusWidget() : Frame();
        QTest::keyClick(target, static_cast<Qt::Key>(key), held);
    }

    ucMenu* menu = nullptr;
    QList<QUrl> opened;
    const QStringList none;
};

using Names = QStringList;

// What is there

TEST_F(ucMenuTest, HoldsItsItemsWithTheirCaptionsAndStates) {
    struct Row {
        const char* panel;
        const char* caption;
        bool shown, enabled;
    };
    const Row rows[] = {
        {"picFile", "  New", true, false},
        {"picFile", "  Open", true, false},
        {"picFile", " Import Recipes", true, true},
        {"picFile", "  Log off", false, false},
        {"picFile", "  Exit", true, true},
        {"picEdit", "  Create & Edit Users", false, false},
        {"picEdit", "  Preferences", true, true},
        {"picEdit", "  Edit My Profile...", true, true},
        {"picEdit", "  Copy", true, false},
        {"picEdit", "  Edit", true, false},
        {"picHelp", "  Contents", true, true},
        {"picHelp", "  Brindlewick Web Site", true, true},
        {"picHelp", "  About Halvane", true, true},
    };
    for (int index = 0; index < 13; ++index) {
        const Row& row = rows[index];
        EXPECT_EQ(Item(index)->Caption(), QLatin1String(row.caption));
        EXPECT_EQ(Item(index)->parentWidget()->objectName(), QLatin1String(row.panel)) << index;
        EXPECT_EQ(!Item(index)->isHidden(), row.shown) << row.caption;
        EXPECT_EQ(Item(index)->isEnabled(), row.enabled) << row.caption;
    }
    EXPECT_EQ(Label("lblFile")->Caption(), QStringLiteral("File"));
    EXPECT_EQ(Label("lblEdit")->Caption(), QStringLiteral("Edit"));
    EXPECT_EQ(Label("lblHelp")->Caption(), QStringLiteral("Help"));
    EXPECT_EQ(Panels(), none);
    EXPECT_FALSE(menu->IsOpen());
}

TEST_F(ucMenuTest, ItsPanelsStandWholeBelowTheirTitlesAndOverTheScreen) {
    for (const char* name : {"File", "Edit", "Help"}) {
        auto* title = Label(qPrintable(QString("lbl" + QLatin1String(name))));
        auto* panel = Find(Frame(), QString("pic" + QLatin1String(name)));
        Press(title);
        EXPECT_EQ(panel->mapTo(Frame(), QPoint()),
                  title->mapTo(Frame(), QPoint(0, title->height())));
        EXPECT_TRUE(Frame()->rect().contains(panel->geometry()));
        const QPoint within = panel->geometry().center();
        EXPECT_TRUE(panel->isAncestorOf(Frame()->childAt(within))) << name;
        menu->ResetMenu();
    }
}

// The mouse

TEST_F(ucMenuTest, APressOnATitleOpensItsPanelAlone) {
    Press(Label("lblFile"));
    EXPECT_EQ(Panels(), Names{"picFile"});
    EXPECT_TRUE(menu->IsOpen());
}

TEST_F(ucMenuTest, APressOnAnyTitleWhileAMenuIsOpenClosesAll) {
    for (const char* second : {"lblFile", "lblEdit", "lblHelp"}) {
        Press(Label("lblFile"));
        Press(Label(second));
        EXPECT_EQ(Panels(), none) << second;
        EXPECT_FALSE(menu->IsOpen()) << second;
    }
}

TEST_F(ucMenuTest, MovingOverATitleOpensNothingWhileTheMenuIsClosed) {
    Hover(Label("lblEdit"));
    EXPECT_EQ(Panels(), none);
    EXPECT_TRUE(Label("lblEdit")->Hilited());
    Hover(Label("lblHelp"));
    EXPECT_FALSE(Label("lblEdit")->Hilited());
}

TEST_F(ucMenuTest, MovingOverAnotherTitleWhileAMenuIsOpenSwitchesToIt) {
    Press(Label("lblFile"));
    Hover(Item(4));
    Hover(Label("lblEdit"));
    EXPECT_EQ(Panels(), Names{"picEdit"});
    EXPECT_EQ(HilitedItems(), QList<int>{});
    Hover(Label("lblHelp"));
    EXPECT_EQ(Panels(), Names{"picHelp"});
    EXPECT_TRUE(menu->IsOpen());
}

TEST_F(ucMenuTest, MovingOverTheOpenTitleKeepsItsPanel) {
    Press(Label("lblEdit"));
    Hover(Label("lblEdit"));
    EXPECT_EQ(Panels(), Names{"picEdit"});
}

TEST_F(ucMenuTest, LeavingATitleTakesItsHighlightOff) {
    Hover(Label("lblEdit"));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(Label("lblEdit"), &leave);
    EXPECT_FALSE(Label("lblEdit")->Hilited());
}

TEST_F(ucMenuTest, AnItemLightsUpUnderTheMouseAloneAndGoesOutBesideIt) {
    Press(Label("lblEdit"));
    Hover(Item(6));
    EXPECT_EQ(HilitedItems(), QList<int>{6});
    Hover(Item(7));
    EXPECT_EQ(HilitedItems(), QList<int>{7});
    Hover(Find(Frame(), QStringLiteral("picEdit")), QPoint(3, 2));
    EXPECT_EQ(HilitedItems(), QList<int>{});
}

TEST_F(ucMenuTest, APressOnADisabledItemDoesNothingAndTheMenuStays) {
    Press(Label("lblFile"));
    Hover(Item(4));
    for (const int index : {0, 1}) {
        Click(Item(index));
        EXPECT_EQ(Panels(), Names{"picFile"}) << index;
        EXPECT_TRUE(menu->IsOpen()) << index;
    }
    menu->ResetMenu();
    Press(Label("lblEdit"));
    for (const int index : {8, 9}) {
        Click(Item(index));
        EXPECT_EQ(Panels(), Names{"picEdit"}) << index;
    }
    EXPECT_EQ(TheNavigation().Front()->objectName(), QStringLiteral("frmMain"));
}

TEST_F(ucMenuTest, ARightPressOnAnItemDoesNothing) {
    Press(Label("lblHelp"));
    QTest::mousePress(Item(10), Qt::RightButton);
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_EQ(Panels(), Names{"picHelp"});
}

TEST_F(ucMenuTest, APressElsewhereClosesTheMenuAndStillCounts) {
    Press(Label("lblFile"));
    Click(Find(Frame(), QStringLiteral("cmdDay")));
    EXPECT_EQ(Panels(), none);
    EXPECT_EQ(TheNavigation().Front()->objectName(), QStringLiteral("frmDay"));
    Press(Label("lblFile"));
    Click(TheNavigation().Front(), QPoint(400, 300));
    EXPECT_FALSE(menu->IsOpen());
}

TEST_F(ucMenuTest, LosingTheInputClosesTheMenu) {
    Press(Label("lblFile"));
    QEvent away(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(Frame(), &away);
    EXPECT_EQ(Panels(), none);
}

TEST_F(ucMenuTest, ResetMenuTakesAllHighlightsOffAndClosesIt) {
    Press(Label("lblEdit"));
    Hover(Label("lblEdit"));
    Hover(Item(6));
    menu->ResetMenu();
    EXPECT_EQ(HilitedItems(), QList<int>{});
    EXPECT_FALSE(Label("lblEdit")->Hilited());
    EXPECT_EQ(Panels(), none);
    EXPECT_FALSE(menu->IsOpen());
}

TEST_F(ucMenuTest, resetHilitesLeavesThePanelOpen) {
    Press(Label("lblEdit"));
    Hover(Item(6));
    menu->resetHilites();
    EXPECT_EQ(HilitedItems(), QList<int>{});
    EXPECT_EQ(Panels(), Names{"picEdit"});
}

TEST_F(ucMenuTest, TheDayAndTheButtonsThatChangeTheScreenCloseIt) {
    Press(Label("lblFile"));
    ::ShowScreen(QStringLiteral("frmDay"));
    EXPECT_EQ(Panels(), none);
    for (const char* name : {"cmdReport", "cmdCommunity", "cmdLogo"}) {
        menu->Open(MenuItems::File);
        Find<DrawnControl>(Frame(), QLatin1String(name))->Activate();
        EXPECT_EQ(Panels(), none) << name;
    }
}

// The commands

TEST_F(ucMenuTest, ExitAsksToQuitOnce) {
    int asked = 0;
    QObject scope;
    QObject::connect(Frame(), &frmHOME::QuitRequested, &scope, [&] { ++asked; });
    Press(Label("lblFile"));
    Press(Item(4));
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(Panels(), none);
}

TEST_F(ucMenuTest, PreferencesOpenOverTheFrame) {
    Press(Label("lblEdit"));
    WithModal(
        [this](QWidget* dialog) {
            EXPECT_EQ(dialog->objectName(), QStringLiteral("frmPrefs"));
            EXPECT_EQ(dialog->parentWidget(), Frame());
        },
        [this] { Press(Item(6)); });
    EXPECT_EQ(Panels(), none);
    EXPECT_FALSE(menu->IsOpen());
}

TEST_F(ucMenuTest, ImportRecipesOpensOverTheFrame) {
    Press(Label("lblFile"));
    WithModal(
        [this](QWidget* dialog) {
            EXPECT_EQ(dialog->objectName(), QStringLiteral("frmImport"));
            EXPECT_EQ(dialog->parentWidget(), Frame());
        },
        [this] { Press(Item(2)); });
    EXPECT_FALSE(menu->IsOpen());
}

TEST_F(ucMenuTest, EditMyProfileEditsTheCurrentUserAndCancelLeadsBack) {
    OpenDatabases();
    AddUser(QStringLiteral("Anna"));
    TheNavigation().Register<frmProfile>(QStringLiteral("frmProfile"));
    Press(Label("lblEdit"));
    Press(Item(7));
    ScreenForm* profile = TheNavigation().Front();
    ASSERT_EQ(profile->objectName(), QStringLiteral("frmProfile"));
    EXPECT_EQ(Panels(), none);
    EXPECT_EQ(Find<QLineEdit>(profile, QStringLiteral("txtUserName"))->text(),
              QStringLiteral("Anna"));
    Click(Find(profile, QStringLiteral("cmdCancel")));
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(TheNavigation().Front()->objectName(), QStringLiteral("frmMain"));
}

TEST_F(ucMenuTest, AWeightBeingTypedReachesTheProfileThatIsEdited) {
    OpenDatabases();
    AddUser(QStringLiteral("Anna"));
    App().AppInfo.AUTOUPDATERDI = true;
    App().CurrentDate = QDate(2002, 4, 3);
    TheNavigation().Register<frmDay>(QStringLiteral("frmDay"));
    TheNavigation().Register<frmProfile>(QStringLiteral("frmProfile"));
    ::ShowScreen(QStringLiteral("frmDay"));
    auto* weight = Find<QLineEdit>(TheNavigation().Front(), QStringLiteral("txtWeight"));
    weight->setFocus();
    QTest::keyClicks(weight, QStringLiteral("195"));
    Press(Label("lblEdit"));
    Press(Item(7));
    ScreenForm* profile = TheNavigation().Front();
    ASSERT_EQ(profile->objectName(), QStringLiteral("frmProfile"));
    EXPECT_EQ(Find<QLineEdit>(profile, QStringLiteral("txtWeight"))->text(), QStringLiteral("195"));
    EXPECT_EQ(Find<QLineEdit>(profile, QStringLiteral("txtCals"))->text(),
              Users("SELECT Calories FROM profiles").toString());
    Click(Find(profile, QStringLiteral("cmdSave")));
    EXPECT_EQ(Users("SELECT current_weight FROM profiles").toInt(), 195);
}

TEST_F(ucMenuTest, ContentsOpensTheHelpAndTheWebSiteThePageOfTheServer) {
    App().AppInfo.HELPPATH = QString(Folder() + "/help/");
    Server::SetAddress(QStringLiteral("https://exchange.example"));
    for (const int index : {10, 11}) {
        Press(Label("lblHelp"));
        Press(Item(index));
        EXPECT_EQ(Panels(), none);
    }
    EXPECT_EQ(opened, (QList<QUrl>{QUrl::fromLocalFile(Folder() + "/help/index.html"),
                                   QUrl("https://exchange.example/index.asp?ref=Halvane")}));
}

TEST_F(ucMenuTest, TheAboutBoxStaysUntilItIsClicked) {
    Press(Label("lblHelp"));
    bool stopped = false;
    WithModal(
        [&](QWidget* about) {
            EXPECT_EQ(about->objectName(), QStringLiteral("frmSplash"));
            EXPECT_EQ(about->parentWidget(), Frame());
            stopped = !Find<QTimer>(about, QStringLiteral("tmrClose"))->isActive();
            Click(about);
            EXPECT_FALSE(about->isVisible());
        },
        [this] { Press(Item(12)); });
    EXPECT_TRUE(stopped);
    EXPECT_EQ(Panels(), none);
}

// The keyboard

TEST_F(ucMenuTest, F10LeadsToTheTitlesAndAwayAgain) {
    auto* field = new QLineEdit(TheNavigation().Front());
    field->show();
    field->setFocus();
    Key(Qt::Key_F10);
    EXPECT_TRUE(Label("lblFile")->hasFocus());
    EXPECT_TRUE(Label("lblFile")->FocusShown());
    EXPECT_FALSE(menu->IsOpen());
    Key(Qt::Key_F10);
    EXPECT_TRUE(field->hasFocus());
    Key(Qt::Key_F10);
    Key(Qt::Key_Escape);
    EXPECT_TRUE(field->hasFocus());
}

TEST_F(ucMenuTest, AltByItselfDoesTheSameWhenItIsLetGo) {
    QTest::keyPress(Frame(), Qt::Key_Alt);
    EXPECT_FALSE(Label("lblFile")->hasFocus());
    QTest::keyRelease(Frame(), Qt::Key_Alt);
    EXPECT_TRUE(Label("lblFile")->hasFocus());
    Key(Qt::Key_Alt);
    EXPECT_FALSE(Label("lblFile")->hasFocus());
}

TEST_F(ucMenuTest, AltHeldForAnotherKeyOrAnotherWindowIsNotAltByItself) {
    QTest::keyPress(Frame(), Qt::Key_Alt);
    QTest::keyPress(Frame(), Qt::Key_X, Qt::AltModifier);
    QTest::keyRelease(Frame(), Qt::Key_X, Qt::AltModifier);
    QTest::keyRelease(Frame(), Qt::Key_Alt);
    EXPECT_FALSE(Label("lblFile")->hasFocus());
    QTest::keyPress(Frame(), Qt::Key_Alt);
    QEvent away(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(Frame(), &away);
    QTest::keyRelease(Frame(), Qt::Key_Alt);
    EXPECT_FALSE(Label("lblFile")->hasFocus());
}

TEST_F(ucMenuTest, AltWithATitlesFirstLetterOpensItOnItsFirstItem) {
    Key(Qt::Key_E, Qt::AltModifier);
    EXPECT_EQ(Panels(), Names{"picEdit"});
    EXPECT_EQ(HilitedItems(), QList<int>{6});
    Key(Qt::Key_H, Qt::AltModifier);
    EXPECT_EQ(Panels(), Names{"picHelp"});
    Key(Qt::Key_F10);
    EXPECT_EQ(Panels(), none);
}

TEST_F(ucMenuTest, ArrowsWalkTheTitlesRoundAndOpenThem) {
    Key(Qt::Key_F10);
    Key(Qt::Key_Left);
    EXPECT_TRUE(Label("lblHelp")->hasFocus());
    Key(Qt::Key_Right);
    Key(Qt::Key_Right);
    EXPECT_TRUE(Label("lblEdit")->hasFocus());
    Key(Qt::Key_Down);
    EXPECT_EQ(Panels(), Names{"picEdit"});
    EXPECT_EQ(HilitedItems(), QList<int>{6});
}

TEST_F(ucMenuTest, ArrowsWalkTheItemsThatCanBeChosenRound) {
    Key(Qt::Key_E, Qt::AltModifier);
    Key(Qt::Key_Down);
    EXPECT_EQ(HilitedItems(), QList<int>{7});
    Key(Qt::Key_Down);
    EXPECT_EQ(HilitedItems(), QList<int>{6});
    Key(Qt::Key_Up);
    EXPECT_EQ(HilitedItems(), QList<int>{7});
    Key(Qt::Key_Right);
    EXPECT_EQ(Panels(), Names{"picHelp"});
    EXPECT_EQ(HilitedItems(), QList<int>{10});
    Key(Qt::Key_Left);
    EXPECT_EQ(Panels(), Names{"picEdit"});
}

TEST_F(ucMenuTest, UpOnATitleOpensItOnItsLastItem) {
    Key(Qt::Key_F10);
    Key(Qt::Key_Left);
    Key(Qt::Key_Up);
    EXPECT_EQ(HilitedItems(), QList<int>{12});
}

TEST_F(ucMenuTest, EnterAndSpaceRunTheItemAndGiveTheFocusBack) {
    App().AppInfo.HELPPATH = QString(Folder() + "/help/");
    auto* field = new QLineEdit(TheNavigation().Front());
    field->show();
    for (const int key : {int(Qt::Key_Return), int(Qt::Key_Enter), int(Qt::Key_Space)}) {
        opened.clear();
        field->setFocus();
        Key(Qt::Key_F10);
        Key(Qt::Key_Left);
        Key(key);
        EXPECT_EQ(Panels(), Names{"picHelp"});
        Key(key);
        EXPECT_EQ(opened.size(), 1);
        EXPECT_EQ(Panels(), none);
        EXPECT_TRUE(field->hasFocus());
    }
}

TEST_F(ucMenuTest, EscapeClosesTheMenuThenLeavesTheBar) {
    Key(Qt::Key_F10);
    Key(Qt::Key_Down);
    Key(Qt::Key_Escape);
    EXPECT_EQ(Panels(), none);
    EXPECT_TRUE(Label("lblFile")->hasFocus());
    Key(Qt::Key_Escape);
    EXPECT_FALSE(Label("lblFile")->hasFocus());
}

TEST_F(ucMenuTest, AMenuOpenedByTheMouseTakesTheKeysAndLeavesTheFocus) {
    auto* field = new QLineEdit(TheNavigation().Front());
    field->show();
    field->setFocus();
    Press(Label("lblEdit"));
    EXPECT_TRUE(field->hasFocus());
    Key(Qt::Key_Down);
    EXPECT_EQ(HilitedItems(), QList<int>{6});
    Key(Qt::Key_A);
    EXPECT_EQ(field->text(), QString());
    Key(Qt::Key_Escape);
    EXPECT_EQ(Panels(), none);
    Key(Qt::Key_A);
    EXPECT_EQ(field->text(), QStringLiteral("a"));
}

TEST_F(ucMenuTest, TabClosesTheMenuAndGoesOn) {
    Key(Qt::Key_F10);
    Key(Qt::Key_Down);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Panels(), none);
    EXPECT_TRUE(Label("lblEdit")->hasFocus());
}

TEST_F(ucMenuTest, AssistiveToolsReadAndPressTitlesAndItems) {
    QAccessibleInterface* title = QAccessible::queryAccessibleInterface(Label("lblHelp"));
    EXPECT_EQ(title->role(), QAccessible::MenuItem);
    EXPECT_TRUE(title->state().hasPopup);
    EXPECT_FALSE(title->state().expanded);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(Label("lblHelp")->parentWidget())->role(),
              QAccessible::MenuBar);
    EXPECT_EQ(title->text(QAccessible::Name), QStringLiteral("Help"));
    title->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::sendPostedEvents(Label("lblHelp"));
    EXPECT_EQ(Panels(), Names{"picHelp"});
    EXPECT_TRUE(title->state().expanded);
    QAccessibleInterface* item = QAccessible::queryAccessibleInterface(Item(10));
    EXPECT_EQ(item->role(), QAccessible::MenuItem);
    EXPECT_EQ(item->text(QAccessible::Name), QStringLiteral("Contents"));
    item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::sendPostedEvents(Item(10));
    EXPECT_EQ(opened.size(), 1);
    EXPECT_EQ(Panels(), none);
}
