#include "toolkit/Input.h"

#include "analysis/ui/DayCell.h"
#include "foods/ui/ElidedLabel.h"
#include "foods/ui/ucFood.h"
#include "intake/ui/MealHeading.h"
#include "support/HalvaneTest.h"
#include "toolkit/DropItem.h"
#include "toolkit/ucAALBL.h"
#include "toolkit/ucBox.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucButtonA.h"
#include "toolkit/ucCalButton.h"
#include "toolkit/ucHeader.h"
#include "toolkit/ucRadio.h"
#include "toolkit/ucScroll.h"
#include "toolkit/ucStrip.h"
#include "toolkit/ucTextRaised.h"
#include "toolkit/ucTitleBar.h"
#include "toolkit/ucTitleFlat.h"

#include <QApplication>
#include <QFocusEvent>
#include <QSignalSpy>
#include <QTest>

namespace {

/// A kind of control that can be clicked. `reset` takes its highlight off, as a screen does.
struct Kind {
    const char* name;
    std::function<QWidget*()> make;
    std::function<void(QWidget*)> reset = [](QWidget*) {};
};

template <class Control> Kind Plain(const char* name) {
    return {name, [] { return new Control; }};
}

template <class Control> Kind WithReset(const char* name) {
    return {name, [] { return new Control; },
            [](QWidget* control) { static_cast<Control*>(control)->Reset(); }};
}

const Kind Kinds[] = {
    WithReset<ucButton>("ucButton"),
    WithReset<ucButtonA>("ucButtonA"),
    WithReset<ucCalButton>("ucCalButton"),
    Plain<ucRadio>("ucRadio"),
    Plain<ucRadioB>("ucRadioB"),
    Plain<ucAALBL>("ucAALBL"),
    Plain<ucHeader>("ucHeader"),
    Plain<ucStrip>("ucStrip"),
    Plain<ucBox>("ucBox"),
    Plain<ucTextRaised>("ucTextRaised"),
    Plain<ucTitleBar>("ucTitleBar"),
    Plain<ucTitleFlat>("ucTitleFlat"),
    {"DropItem", [] { return new DropItem(QStringLiteral("May"), QStringLiteral("5"), nullptr); }},
    {"MealHeading",
     [] {
         return new MealHeading(QStringLiteral("lblMeal0"), QStringLiteral("Breakfast"), nullptr);
     }},
    {"DayCell", [] { return new DayCell(5, nullptr); }},
    {"ElidedLabel", [] { return new ElidedLabel(nullptr, QStringLiteral("lblServA")); }},
    {"ucFood", [] { return new ucFood; }},
};

class ClickTest : public HalvaneTest, public ::testing::WithParamInterface<Kind> {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        control.reset(GetParam().make());
        if (!qobject_cast<ucAALBL*>(control.get()))
            control->resize(120, 40);
        control->show();
        clicks = std::make_unique<QSignalSpy>(control.get(), SIGNAL(Click()));
        middle = QRectF(control->rect()).center();
        outside = {middle.x(), control->height() + 10.0};
    }

    /// The four corners, and the middles of the four sides.
    QList<QPointF> OutermostPixels() const {
        const QRect all = control->rect();
        return {all.topLeft(),
                all.topRight(),
                all.bottomLeft(),
                all.bottomRight(),
                QPoint(all.center().x(), 0),
                QPoint(0, all.center().y()),
                QPoint(all.right(), all.center().y()),
                QPoint(all.center().x(), all.bottom())};
    }

    std::unique_ptr<QWidget> control;
    std::unique_ptr<QSignalSpy> clicks;
    QPointF middle, outside;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(OfEachKind, ClickTest, ::testing::ValuesIn(Kinds),
                         [](const auto& kind) { return std::string(kind.param.name); });

TEST_P(ClickTest, CountsOnTheOutermostPixels) {
    for (const QPointF place : OutermostPixels()) {
        clicks->clear();
        SendMove(control.get(), place);
        SendPress(control.get(), place);
        SendRelease(control.get(), place);
        EXPECT_EQ(clicks->count(), 1) << place.x() << ", " << place.y();
    }
}

TEST_P(ClickTest, CountsBetweenTheOutermostPixelAndTheEdge) {
    const QPointF place(control->width() - .25, control->height() - .25);
    SendPress(control.get(), place);
    SendRelease(control.get(), place);
    EXPECT_EQ(clicks->count(), 1);
}

TEST_P(ClickTest, CountsWhereTheHighlightWasTakenOffInBetween) {
    SendPress(control.get(), middle);
    GetParam().reset(control.get());
    SendLeave(control.get());
    SendRelease(control.get(), middle);
    EXPECT_EQ(clicks->count(), 1);
}

TEST_P(ClickTest, CountsWhereTheControlGrewInBetween) {
    SendPress(control.get(), middle);
    control->resize(control->width() + 30, control->height() + 5);
    SendRelease(control.get(), middle);
    EXPECT_EQ(clicks->count(), 1);
}

TEST_P(ClickTest, CountsWherePointerLeftAndCameBack) {
    SendPress(control.get(), middle);
    SendRelease(control.get(), middle, Qt::RightButton);
    SendMove(control.get(), QPointF(middle.x(), outside.y()), Qt::LeftButton);
    SendMove(control.get(), middle, Qt::LeftButton);
    SendRelease(control.get(), middle);
    EXPECT_EQ(clicks->count(), 1);
}

TEST_P(ClickTest, DoesNotCountOnePixelOutside) {
    for (const QPointF place :
         {QPointF(middle.x(), -1), QPointF(-1, middle.y()), QPointF(control->width(), middle.y()),
          QPointF(middle.x(), control->height())}) {
        SendPress(control.get(), middle);
        SendRelease(control.get(), place);
    }
    EXPECT_EQ(clicks->count(), 0);
}

TEST_P(ClickTest, DoesNotCountWithoutAPressOrWithAnotherButton) {
    SendRelease(control.get(), middle);
    SendPress(control.get(), middle, Qt::RightButton);
    SendRelease(control.get(), middle, Qt::RightButton);
    EXPECT_EQ(clicks->count(), 0);
}

TEST_P(ClickTest, CountsOnceAPress) {
    SendPress(control.get(), middle);
    SendRelease(control.get(), middle);
    SendRelease(control.get(), middle);
    EXPECT_EQ(clicks->count(), 1);
}

namespace {
using PressedPartTest = HalvaneTest;
}

TEST_F(PressedPartTest, ASpaceThatIsHeldClicksWhereTheHighlightWasTakenOffInBetween) {
    ucButton button(QStringLiteral("Done"));
    QSignalSpy clicks(&button, &ucButton::Click);
    button.show();
    QTest::keyPress(&button, Qt::Key_Space);
    button.Reset();
    QTest::keyRelease(&button, Qt::Key_Space);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(PressedPartTest, ASpaceThatIsLetGoElsewhereDoesNotClick) {
    ucButton button(QStringLiteral("Done"));
    QSignalSpy clicks(&button, &ucButton::Click);
    button.show();
    QTest::keyPress(&button, Qt::Key_Space);
    QFocusEvent lost(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(&button, &lost);
    QTest::keyRelease(&button, Qt::Key_Space);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(PressedPartTest, TheLastRowAndColumnOfAScrollArrowAreNotDead) {
    ucScroll bar;
    bar.resize(16, 120);
    bar.show();
    const int before = bar.Value();
    SendPress(&bar, QPointF(15.75, 119.75));
    SendRelease(&bar, QPointF(15.75, 119.75));
    EXPECT_EQ(bar.Value(), before + bar.SmallChange());
}
