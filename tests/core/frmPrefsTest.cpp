#include "core/CoreTest.h"

#include "core/frmPrefs.h"
#include "runtime/AppState.h"
#include "runtime/Settings.h"
#include "toolkit/ucRadio.h"

#include <QCheckBox>
#include <QLabel>
#include <QTest>

class frmPrefsTest : public CoreTest {
protected:
    QCheckBox* Box(const char* name) { return Find<QCheckBox>(&*dialog_, QLatin1String(name)); }
    void Open() { dialog_ = std::make_unique<frmPrefs>(); }
    ucRadio* Style(int i) { return Find<ucRadio>(&*dialog_, QStringLiteral("opStyle%1").arg(i)); }
    void Press(const char* name) { Click(Find(&*dialog_, QLatin1String(name))); }
    QString Stored(const char* name) { return GetRegValue(QLatin1String(name)); }

    std::unique_ptr<frmPrefs> dialog_;
};

TEST_F(frmPrefsTest, CaptionsAndNotesReadRight) {
    Open();
    EXPECT_EQ(Box("ckFast")->text(), QStringLiteral("Use more memory to increase performance"));
    EXPECT_EQ(Box("ckLimit")->text(), QStringLiteral("Limit search results to 50"));
    EXPECT_EQ(Box("ckAUTO")->text(), QStringLiteral("Automatically adjust intake needs"));
    EXPECT_EQ(Box("ckDrop")->text(), QStringLiteral("Use drop shadows behind windows"));
    EXPECT_EQ(Find<QLabel>(&*dialog_, QStringLiteral("ckLimitNote"))->text(),
              QStringLiteral("Check this box to speed up search results or if you are seeing "
                             "graphical problems with your search results."));
    EXPECT_EQ(Find<QLabel>(&*dialog_, QStringLiteral("ckAUTONote"))->text(),
              QStringLiteral("Checking this box will force Halvane to adjust your caloric need and "
                             "RDIs for protein carbohydrates and fat each time you weigh in."));
    EXPECT_EQ(Find<QLabel>(&*dialog_, QStringLiteral("ckDropNote"))->text(),
              QStringLiteral("may cause Halvane to repaint incorrectly on computers with "
                             "insufficient RAM."));
}

TEST_F(frmPrefsTest, AnEmptyStoreShowsTheDefaults) {
    App().AppInfo.LIMITRESULTS = true;
    Open();
    EXPECT_FALSE(Box("ckFast")->isChecked());
    EXPECT_TRUE(Box("ckLimit")->isChecked());
    EXPECT_TRUE(Box("ckAUTO")->isChecked());
    EXPECT_FALSE(Box("ckDrop")->isChecked());
}

TEST_F(frmPrefsTest, LowerCaseTrueShowsUntickedAndSavingWritesFalse) {
    SetRegValue(QStringLiteral("FAST"), QStringLiteral("true"));
    App().AppInfo.FAST = true;
    Open();
    EXPECT_FALSE(Box("ckFast")->isChecked());
    Press("cmdSave");
    EXPECT_EQ(Stored("FAST"), QStringLiteral("False"));
    EXPECT_FALSE(App().AppInfo.FAST);
}

TEST_F(frmPrefsTest, LowerCaseFalseShowsTheIntakeNeedsTicked) {
    SetRegValue(QStringLiteral("AUTORDI"), QStringLiteral("false"));
    Open();
    EXPECT_TRUE(Box("ckAUTO")->isChecked());
    SetRegValue(QStringLiteral("AUTORDI"), QStringLiteral("False"));
    Open();
    EXPECT_FALSE(Box("ckAUTO")->isChecked());
}

TEST_F(frmPrefsTest, TheLimitComesFromMemoryNotFromTheStore) {
    SetRegValue(QStringLiteral("LIMIT50"), QStringLiteral("True"));
    App().AppInfo.LIMITRESULTS = false;
    Open();
    EXPECT_FALSE(Box("ckLimit")->isChecked());
}

TEST_F(frmPrefsTest, SavingWritesEachBoxAndSetsItInMemoryAtOnce) {
    App().AppInfo.LIMITRESULTS = true;
    App().AppInfo.AUTOUPDATERDI = true;
    Open();
    dialog_->show();
    Click(Box("ckFast"), QPoint(8, Box("ckFast")->height() / 2));
    Click(Box("ckLimit"), QPoint(8, Box("ckLimit")->height() / 2));
    Click(Box("ckAUTO"), QPoint(8, Box("ckAUTO")->height() / 2));
    Press("cmdSave");
    EXPECT_EQ(Stored("FAST"), QStringLiteral("True"));
    EXPECT_EQ(Stored("LIMIT50"), QStringLiteral("False"));
    EXPECT_EQ(Stored("AUTORDI"), QStringLiteral("False"));
    EXPECT_TRUE(App().AppInfo.FAST);
    EXPECT_FALSE(App().AppInfo.LIMITRESULTS);
    EXPECT_FALSE(App().AppInfo.AUTOUPDATERDI);
    EXPECT_FALSE(dialog_->isVisible());
}

TEST_F(frmPrefsTest, TheShadowBoxHasNoEffect) {
    SetRegValue(QStringLiteral("DROPSHADOWS"), QStringLiteral("maybe"));
    Open();
    Box("ckDrop")->setChecked(true);
    Press("cmdSave");
    EXPECT_EQ(Stored("DROPSHADOWS"), QStringLiteral("maybe"));
    Open();
    EXPECT_FALSE(Box("ckDrop")->isChecked());
}

TEST_F(frmPrefsTest, TheChosenStyleIsKept) {
    Open();
    EXPECT_TRUE(Style(0)->Value());
    Click(Style(2));
    EXPECT_FALSE(Style(0)->Value());
    Press("cmdSave");
    EXPECT_EQ(Stored("UISTYLE"), QStringLiteral("DARK"));
    Open();
    EXPECT_TRUE(Style(2)->Value());
    QTest::keyClick(Style(2), Qt::Key_Space);
    Press("cmdCancel");
    EXPECT_EQ(Stored("UISTYLE"), QStringLiteral("DARK"));
}

TEST_F(frmPrefsTest, AStyleThatIsNotKnownCountsAsThatOfTheDesktop) {
    SetRegValue(QStringLiteral("UISTYLE"), QStringLiteral("dark"));
    Open();
    EXPECT_TRUE(Style(0)->Value());
}

TEST_F(frmPrefsTest, CancelAndEscapeChangeNothing) {
    Open();
    dialog_->show();
    Box("ckFast")->setChecked(true);
    Press("cmdCancel");
    EXPECT_FALSE(dialog_->isVisible());
    dialog_->show();
    QTest::keyClick(&*dialog_, Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_EQ(Stored("FAST"), QString());
    EXPECT_EQ(Stored("LIMIT50"), QString());
    EXPECT_EQ(Stored("AUTORDI"), QString());
    EXPECT_FALSE(App().AppInfo.FAST);
}

TEST_F(frmPrefsTest, TabWalksTheBoxesThenTheStylesThenSaveThenCancel) {
    Open();
    dialog_->show();
    Activate(&*dialog_);
    Box("ckFast")->setFocus();
    QStringList names;
    for (int step = 0; step < 10; ++step) {
        names << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    const QStringList wanted{QStringLiteral("ckFast"),   QStringLiteral("ckLimit"),
                             QStringLiteral("ckAUTO"),   QStringLiteral("ckDrop"),
                             QStringLiteral("opStyle0"), QStringLiteral("opStyle1"),
                             QStringLiteral("opStyle2"), QStringLiteral("opStyle3"),
                             QStringLiteral("cmdSave"),  QStringLiteral("cmdCancel")};
    EXPECT_EQ(names, wanted);
}
