#include "toolkit/Input.h"

#include "support/HalvaneTest.h"
#include "toolkit/ucRadio.h"

#include <QSignalSpy>
#include <QTest>

using ucRadioTest = HalvaneTest;

TEST_F(ucRadioTest, AClickTurnsItOnAndNeverOff) {
    ucRadio radio(QStringLiteral("Lunch"));
    QSignalSpy clicks(&radio, &ucRadio::Click);
    EXPECT_FALSE(radio.Value());
    Click(&radio);
    EXPECT_TRUE(radio.Value());
    Click(&radio);
    EXPECT_TRUE(radio.Value());
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(ucRadioTest, ItIsOnBeforeTheClickIsRaised) {
    ucRadio radio;
    bool onAtClick = false;
    QObject::connect(&radio, &ucRadio::Click, [&] { onAtClick = radio.Value(); });
    Click(&radio);
    EXPECT_TRUE(onAtClick);
}

TEST_F(ucRadioTest, SettingValueShowsThePictureWithoutAClick) {
    ucRadio radio;
    QSignalSpy clicks(&radio, &ucRadio::Click);
    const QImage off = Grab(&radio);
    radio.setProperty("Value", true);
    const QImage on = Grab(&radio);
    EXPECT_NE(on, off);
    radio.SetValue(false);
    EXPECT_EQ(Grab(&radio), off);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ucRadioTest, TheControlDoesNotTurnItsNeighboursOff) {
    QWidget parent;
    ucRadio first(QStringLiteral("Male"), &parent);
    ucRadio second(QStringLiteral("Female"), &parent);
    first.SetValue(true);
    Click(&second);
    EXPECT_TRUE(first.Value());
    EXPECT_TRUE(second.Value());
}

TEST_F(ucRadioTest, TheTwinsDifferOnlyInTheirPictures) {
    ucRadio dot(QStringLiteral("Lunch"));
    ucRadioB lever(QStringLiteral("Lunch"));
    EXPECT_NE(Grab(&dot), Grab(&lever));
    Click(&lever);
    EXPECT_TRUE(lever.Value());
}

TEST_F(ucRadioTest, ReleasedOutsideItStaysAsItWas) {
    ucRadio radio(QStringLiteral("Lunch"));
    SendPress(&radio, QPointF(8, 8));
    SendRelease(&radio, QPointF(8, 90));
    EXPECT_FALSE(radio.Value());
}

TEST_F(ucRadioTest, ALongerCaptionWidensIt) {
    ucRadio radio(QStringLiteral("Lunch"));
    const int width = radio.width();
    radio.SetCaption(QStringLiteral("Moderately active"));
    EXPECT_GT(radio.width(), width);
}

TEST_F(ucRadioTest, SpaceTurnsItOnAndArrowsGoThroughTheSetOfItsName) {
    QWidget parent;
    QList<ucRadio*> meals;
    for (int i = 0; i < 3; ++i) {
        meals << new ucRadio(QString::number(i), &parent);
        meals[i]->setObjectName("opMeal" + QString::number(i));
    }
    ucRadio other(QStringLiteral("Male"), &parent);
    other.setObjectName(QStringLiteral("opMale"));
    parent.show();
    QTest::keyClick(meals[0], Qt::Key_Space);
    EXPECT_TRUE(meals[0]->Value());
    QTest::keyClick(meals[0], Qt::Key_Down);
    EXPECT_TRUE(meals[1]->Value());
    QTest::keyClick(meals[0], Qt::Key_Up);
    EXPECT_TRUE(meals[2]->Value());
    EXPECT_FALSE(other.Value());
}

TEST_F(ucRadioTest, DisabledItCannotBeTurnedOn) {
    ucRadio radio(QStringLiteral("Lunch"));
    radio.setEnabled(false);
    Click(&radio);
    EXPECT_FALSE(radio.Value());
}
