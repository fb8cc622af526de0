#include "toolkit/Input.h"

#include "drawing/Style.h"
#include "support/HalvaneTest.h"
#include "support/Restored.h"
#include "toolkit/ButtonRow.h"
#include "toolkit/CleanUp.h"
#include "toolkit/Dialog.h"
#include "toolkit/ScreenForm.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucButtonA.h"
#include "toolkit/ucTitleFlat.h"

#include <QApplication>
#include <QCursor>
#include <QTest>
#include <QTimer>

namespace {

class ListeningScreen : public ScreenForm {
public:
    ListeningScreen()
        : ScreenForm(QStringLiteral("frmDay"), QStringLiteral("Daily Details")) {}
    void AllOff(const QString& except) override { calls << except; }
    QStringList calls;
    ucButton* plain = AddButton("cmdAdd", "Add", [] {});
    ucButton* renamed = AddButton(
        "cmdDone", "Done", [] {}, "cmddone");
};

class ButtonScreen : public ScreenForm {
public:
    ButtonScreen()
        : ScreenForm(QStringLiteral("frmDay"), QStringLiteral("Daily Details")) {
        done->move(100, 0);
    }
    ucButton* add = AddButton("cmdAdd", "Add", [] {});
    ucButton* done = AddButton("cmdDone", "Done", [] {});
};

class FormTest : public HalvaneTest {
protected:
    void TearDown() override {
        QCursor::setPos(0, 0);
        HalvaneTest::TearDown();
    }
};

} // namespace

TEST_F(FormTest, ALitButtonIsTurnedOffWhenThePointerStandsOutsideTheForm) {
    Dialog dialog(QStringLiteral("frmFoodSearch"), QStringLiteral("Eat foods"));
    ucButton button(QStringLiteral("Done"), &dialog);
    button.setObjectName(QStringLiteral("cmdDone"));
    dialog.setGeometry(100, 100, 300, 200);
    dialog.show();
    QCursor::setPos(dialog.mapToGlobal(QPoint(20, 60)));
    SendMove(&button, QPointF(5, 5));
    QCursor::setPos(dialog.mapToGlobal(QPoint(320, 60)));
    EXPECT_TRUE(QTest::qWaitFor([&] { return button.State() == 1; }, 30'000));
}

TEST_F(FormTest, TheCleanUpTimerTicksEvery250MillisecondsAndTheEdgeIsInside) {
    QWidget form;
    form.setGeometry(200, 150, 100, 80);
    form.show();
    int calls = 0;
    QTimer* timer = AddCleanUp(&form, [&] { ++calls; });
    EXPECT_EQ(timer->objectName(), "cleanUp");
    EXPECT_EQ(timer->interval(), 250);
    EXPECT_TRUE(timer->isActive());
    const auto tickAt = [&](QPoint place) {
        calls = 0;
        QCursor::setPos(form.mapToGlobal(place));
        QMetaObject::invokeMethod(timer, "timeout");
        return calls;
    };
    for (const QPoint inside : {QPoint(0, 0), QPoint(100, 80), QPoint(0, 80), QPoint(50, 40)})
        EXPECT_EQ(tickAt(inside), 0) << inside.x() << ',' << inside.y();
    for (const QPoint outside : {QPoint(-1, 40), QPoint(101, 40), QPoint(50, -1), QPoint(50, 81)})
        EXPECT_EQ(tickAt(outside), 1) << outside.x() << ',' << outside.y();
}

TEST_F(FormTest, AFormHasOneCleanUpTimer) {
    QWidget form;
    form.show();
    int first = 0;
    int second = 0;
    QTimer* timer = AddCleanUp(&form, [&] { ++first; });
    EXPECT_EQ(AddCleanUp(&form, [&] { ++second; }), timer);
    QCursor::setPos(form.mapToGlobal(QPoint(-50, -50)));
    QMetaObject::invokeMethod(timer, "timeout");
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
}

TEST_F(FormTest, AScreenTakesTheLightsOffOnlyWhereThePointerHasReallyMoved) {
    ListeningScreen screen;
    screen.resize(200, 200);
    screen.show();
    SendMove(&screen, QPointF(10, 10));
    SendMove(&screen, QPointF(10, 10));
    SendMove(&screen, QPointF(10, 11));
    EXPECT_EQ(screen.calls, (QStringList{QString(), QString()}));
}

TEST_F(FormTest, FromOneButtonToAnotherTheNewOneLightsAndTheOldOneGoesOut) {
    ButtonScreen screen;
    screen.resize(300, 100);
    screen.show();
    SendMove(screen.add, QPointF(5, 5));
    SendMove(screen.done, QPointF(5, 5));
    EXPECT_EQ(screen.add->State(), 1);
    EXPECT_EQ(screen.done->State(), 2);
    screen.AllOff(QStringLiteral("CMDDONE"));
    EXPECT_EQ(screen.done->State(), 2) << "names are compared without regard to case";
    SendMove(&screen, QPointF(150, 80));
    EXPECT_EQ(screen.done->State(), 1);
}

TEST_F(FormTest, AButtonOfAScreenIsCalledByItsHoverNameWhereItHasOne) {
    ListeningScreen screen;
    screen.resize(200, 200);
    screen.show();
    SendMove(screen.plain, QPointF(5, 5));
    SendMove(screen.renamed, QPointF(5, 5));
    EXPECT_EQ(screen.calls, (QStringList{"cmdAdd", "cmddone"}));
}

TEST_F(FormTest, AScreenHasItsNameTitleAndTimer) {
    ListeningScreen screen;
    EXPECT_EQ(screen.objectName(), "frmDay");
    EXPECT_EQ(screen.Title(), "Daily Details");
    EXPECT_NE(screen.findChild<QTimer*>(QStringLiteral("cleanUp")), nullptr);
    screen.resize(40, 80);
    EXPECT_EQ(Grab(&screen).pixelColor(20, 60), TheStyle().canvas);
}

TEST_F(FormTest, AllOffOfADialogResetsAllButTheNamedButton) {
    Dialog dialog(QStringLiteral("frmAlert"), QStringLiteral("Halvane"));
    ucButton ok(QStringLiteral("OK"), &dialog);
    ucButtonA help(&dialog);
    ok.setObjectName(QStringLiteral("cmdOK"));
    help.setObjectName(QStringLiteral("cmdHelp"));
    dialog.show();
    SendMove(&ok, QPointF(5, 5));
    SendMove(&help, QPointF(5, 5));
    dialog.AllOff(QStringLiteral("cmdok"));
    EXPECT_EQ(ok.State(), 2);
    EXPECT_EQ(help.Shown(), "img_NORM");
    SendMove(&dialog, QPointF(50, 60));
    EXPECT_EQ(ok.State(), 1);
}

TEST_F(FormTest, FromOneButtonOfADialogToAnotherTheOldOneGoesOut) {
    Dialog dialog(QStringLiteral("frmAlert"), QStringLiteral("Halvane"));
    ucButton* ok = MakeButton(&dialog, QStringLiteral("cmdOK"), QStringLiteral("OK"));
    ucButton* cancel = MakeButton(&dialog, QStringLiteral("cmdCancel"), QStringLiteral("Cancel"));
    LayButtonRow(QRect(0, 34, 300, 166), {ok, cancel});
    dialog.show();
    SendMove(ok, QPointF(5, 5));
    SendMove(cancel, QPointF(5, 5));
    EXPECT_EQ(ok->State(), 1);
    EXPECT_EQ(cancel->State(), 2);
}

TEST_F(FormTest, ADialogStandsInTheMiddleOfItsOwner) {
    QWidget owner;
    owner.setWindowFlags(Qt::FramelessWindowHint);
    owner.setGeometry(40, 30, 500, 400);
    owner.show();
    Dialog dialog(QStringLiteral("frmAlert"), QStringLiteral("Halvane"), &owner);
    dialog.resize(300, 200);
    WithModal([&](QWidget* shown) { EXPECT_EQ(shown->geometry(), QRect(140, 130, 300, 200)); },
              [&] { EXPECT_EQ(dialog.ShowModal(), QDialog::Rejected); });
}

TEST_F(FormTest, BackFromBeingMinimisedADialogStandsWhereItWasDragged) {
    Dialog dialog(QStringLiteral("frmAlert"), QStringLiteral("Halvane"));
    dialog.resize(300, 200);
    dialog.show();
    dialog.move(11, 22);
    SendRestored(&dialog);
    EXPECT_EQ(dialog.pos(), QPoint(11, 22));
}

TEST_F(FormTest, EscapeRejectsADialog) {
    Dialog dialog(QStringLiteral("frmAlert"), QStringLiteral("Halvane"));
    dialog.setResult(QDialog::Accepted);
    WithModal([](QWidget* shown) { QTest::keyClick(shown, Qt::Key_Escape); },
              [&] { EXPECT_EQ(dialog.ShowModal(), QDialog::Rejected); });
}

TEST_F(FormTest, ADialogHasAFlatTitleAndAFrame) {
    Dialog dialog(QStringLiteral("frmAlert"), QStringLiteral("Halvane"));
    dialog.resize(300, 200);
    dialog.show();
    EXPECT_EQ(dialog.Title()->Caption(), "Halvane");
    EXPECT_EQ(dialog.Title()->geometry(), QRect(0, 0, 300, 34));
    EXPECT_TRUE(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
    const QImage drawn = Grab(&dialog);
    for (const QPoint place :
         {QPoint(0, 100), QPoint(150, 199), QPoint(0, 17), QPoint(299, 17), QPoint(150, 0)})
        EXPECT_EQ(drawn.pixelColor(place), TheStyle().frame) << place.x() << '/' << place.y();
    EXPECT_EQ(drawn.pixelColor(150, 100), TheStyle().canvas);
}
