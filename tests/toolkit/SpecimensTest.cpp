#include "gallery/Specimens.h"
#include "drawing/Style.h"
#include "support/HalvaneTest.h"
#include "toolkit/ApplyStyle.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucButtonA.h"
#include "toolkit/ucRadio.h"
#include "toolkit/ucScroll.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

#include <map>
#include <memory>

namespace {

class SpecimensTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        ApplyStyle(*qApp);
    }

    /// A window that holds the control alone, with the control in its state.
    struct Shown {
        std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
        QWidget* control = nullptr;
    };
    static Shown Show(const Specimen& specimen) {
        Shown shown;
        shown.control = specimen.make(shown.window.get());
        shown.window->resize(shown.control->size());
        shown.window->show();
        QApplication::setActiveWindow(shown.window.get());
        QApplication::processEvents();
        if (QWidget* focused = shown.window->focusWidget())
            focused->clearFocus();
        specimen.apply(shown.control);
        QApplication::processEvents();
        return shown;
    }
    static std::string NameOf(const Specimen& specimen) {
        return specimen.control.toStdString() + ": " + specimen.state.toStdString();
    }
};

} // namespace

TEST_F(SpecimensTest, EveryStateOfAControlIsPaintedDifferently) {
    std::map<QString, QList<QPair<QString, QImage>>> seen;
    for (const Specimen& specimen : Specimens()) {
        const Shown shown = Show(specimen);
        const QImage image = Grab(shown.window.get());
        for (const auto& [state, other] : seen[specimen.control])
            EXPECT_NE(image, other) << NameOf(specimen) << " looks like " << state.toStdString();
        seen[specimen.control] << qMakePair(specimen.state, image);
    }
}

TEST_F(SpecimensTest, EveryControlPaintsSomething) {
    for (const Specimen& specimen : Specimens()) {
        const Shown shown = Show(specimen);
        QImage bare(shown.window->size(), QImage::Format_RGB32);
        bare.fill(TheStyle().canvas);
        EXPECT_NE(Grab(shown.window.get()), bare) << NameOf(specimen);
    }
}

TEST_F(SpecimensTest, EveryControlHasAnAccessibleName) {
    for (const Specimen& specimen : Specimens()) {
        const Shown shown = Show(specimen);
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(shown.control);
        ASSERT_NE(spoken, nullptr) << NameOf(specimen);
        const bool unnamed = specimen.state == QLatin1String("without header") ||
                             specimen.control == QLatin1String("QPlainTextEdit");
        EXPECT_TRUE(unnamed || !spoken->text(QAccessible::Name).isEmpty()) << NameOf(specimen);
    }
}

TEST_F(SpecimensTest, EveryControlThatCanBeWorkedIsReachedWithTab) {
    for (const Specimen& specimen : Specimens()) {
        if (!specimen.tabStop)
            continue;
        Shown shown = Show(specimen);
        shown.control->clearFocus();
        QTest::keyClick(shown.window.get(), Qt::Key_Tab);
        EXPECT_TRUE(shown.control->hasFocus()) << NameOf(specimen);
    }
}

TEST_F(SpecimensTest, ControlsSayRoleStateAndValue) {
    ucButton button(QStringLiteral("Done"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&button)->role(), QAccessible::Button);
    ucRadio radio(QStringLiteral("Lunch"));
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&radio);
    EXPECT_EQ(spoken->role(), QAccessible::RadioButton);
    EXPECT_FALSE(spoken->state().checked);
    spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::sendPostedEvents(&radio);
    EXPECT_TRUE(spoken->state().checked);
    ucScroll bar;
    bar.SetValue(7);
    spoken = QAccessible::queryAccessibleInterface(&bar);
    EXPECT_EQ(spoken->role(), QAccessible::ScrollBar);
    ASSERT_NE(spoken->valueInterface(), nullptr);
    EXPECT_EQ(spoken->valueInterface()->currentValue().toInt(), 7);
    spoken->valueInterface()->setCurrentValue(3);
    EXPECT_EQ(bar.Value(), 3);
}

TEST_F(SpecimensTest, AButtonOfASetSaysWhetherItIsChosenAndAnotherDoesNot) {
    ucButtonA view;
    view.SetPictures(QStringLiteral("view-bars"), QStringLiteral("Bars"));
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&view);
    EXPECT_EQ(spoken->role(), QAccessible::Button);
    EXPECT_FALSE(spoken->state().checkable);
    EXPECT_EQ(spoken->text(QAccessible::Description), "") << "the tip says the same as the name";
    view.SetChosen(false);
    EXPECT_EQ(spoken->role(), QAccessible::RadioButton);
    EXPECT_FALSE(spoken->state().checked);
    view.SetChosen(true);
    EXPECT_TRUE(spoken->state().checked);
}

TEST_F(SpecimensTest, AssistiveToolsPressNothingBelowADialog) {
    const QString press = QAccessibleActionInterface::pressAction();
    QWidget window;
    ucButton button(QStringLiteral("Save"), &window);
    QDialog dialog(&window);
    dialog.setModal(true);
    ucButton answer(QStringLiteral("OK"), &dialog);
    QSignalSpy below(&button, &ucButton::Click);
    QSignalSpy answered(&answer, &ucButton::Click);
    window.show();
    dialog.show();
    for (ucButton* pressed : {&button, &answer})
        QAccessible::queryAccessibleInterface(pressed)->actionInterface()->doAction(press);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(below.count(), 0);
    EXPECT_EQ(answered.count(), 1);
}

TEST_F(SpecimensTest, TheFocusRingShowsForTheKeyboardAndNotForTheMouse) {
    QWidget window;
    ucButton button(QStringLiteral("Done"), &window);
    window.show();
    QApplication::setActiveWindow(&window);
    button.clearFocus();
    button.setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(button.FocusShown());
    button.clearFocus();
    button.setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(button.FocusShown());
    button.clearFocus();
    EXPECT_FALSE(button.FocusShown());
}
