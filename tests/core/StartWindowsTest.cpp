#include "core/CoreTest.h"

#include "core/frmSplash.h"
#include "core/frmWelcome.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QTimer>

class frmSplashTest : public CoreTest {};

TEST_F(frmSplashTest, ItShowsTheVersionAndClosesItselfAfterTwoSeconds) {
    frmSplash splash;
    EXPECT_EQ(Find<QLabel>(&splash, QStringLiteral("lblVersion"))->text(),
              QStringLiteral("Version 1.0.0"));
    auto* tmrClose = Find<QTimer>(&splash, QStringLiteral("tmrClose"));
    EXPECT_EQ(tmrClose->interval(), 2000);
    EXPECT_TRUE(tmrClose->isActive());
    tmrClose->setInterval(0);
    EXPECT_EQ(splash.exec(), QDialog::Accepted);
    EXPECT_FALSE(splash.isVisible());
}

TEST_F(frmSplashTest, AClickOrAnyKeyClosesIt) {
    for (const int key : {Qt::Key_Space, Qt::Key_A, Qt::Key_Escape, Qt::Key_Return}) {
        frmSplash splash;
        splash.show();
        QTest::keyClick(&splash, Qt::Key(key));
        EXPECT_FALSE(splash.isVisible()) << key;
    }
    frmSplash splash;
    splash.show();
    Click(&splash);
    EXPECT_FALSE(splash.isVisible());
}

TEST_F(frmSplashTest, AClickOnAnyTextClosesItToo) {
    for (const char* name : {"lblName", "lblWhat", "lblVersion"}) {
        frmSplash splash;
        splash.show();
        Click(Find(&splash, QLatin1String(name)));
        EXPECT_FALSE(splash.isVisible()) << name;
    }
}

TEST_F(frmSplashTest, ItStandsInTheMiddleOfTheScreenAndOfItsOwner) {
    frmSplash splash;
    splash.show();
    EXPECT_EQ(splash.geometry().center(), splash.screen()->availableGeometry().center());
    QWidget frame;
    frame.setGeometry(60, 40, 701, 501);
    frame.show();
    frmSplash about(&frame);
    about.show();
    EXPECT_EQ(about.geometry().center(), frame.geometry().center());
}

class frmWelcomeTest : public CoreTest {};

TEST_F(frmWelcomeTest, ItSaysWhatComesNext) {
    frmWelcome::Open();
    QWidget* welcome = Window(QStringLiteral("frmWelcome"));
    ASSERT_NE(welcome, nullptr);
    EXPECT_FALSE(welcome->isModal());
    EXPECT_EQ(Find<QLabel>(welcome, QStringLiteral("lblWelcome"))->text(),
              QStringLiteral("In order to begin using Halvane, you will need to create a user "
                             "profile. In the following screen you can enter your profile "
                             "information. This information can be changed later by using the "
                             "Profile Manager which can be found under the \"Edit\" menu."));
}

TEST_F(frmWelcomeTest, BeginClosesItAndOpensTheFirstProfile) {
    OpenDatabases();
    frmWelcome::Open();
    QWidget* welcome = Window(QStringLiteral("frmWelcome"));
    ExpectAlert(QStringLiteral("You must create a user profile to use Halvane. Are you sure you "
                               "wish to quit without creating your profile?"));
    WithModal(
        [&](QWidget* profile) {
            EXPECT_EQ(profile->objectName(), QStringLiteral("frmProfile"));
            EXPECT_FALSE(welcome->isVisible());
            Click(Find(profile, QStringLiteral("cmdCancel")));
            profile->close();
        },
        [&] { Click(Find(welcome, QStringLiteral("cmdBegin"))); });
    EXPECT_EQ(endings, QList<int>{0});
}

TEST_F(frmWelcomeTest, ClosingItInAnotherWayEndsTheProcess) {
    frmWelcome::Open();
    QTest::keyClick(Window(QStringLiteral("frmWelcome")), Qt::Key_Escape);
    EXPECT_EQ(endings, QList<int>{0});
    frmWelcome::Open();
    Window(QStringLiteral("frmWelcome"))->close();
    EXPECT_EQ(endings, (QList<int>{0, 0}));
    EXPECT_EQ(Window(QStringLiteral("frmWelcome")), nullptr);
}
