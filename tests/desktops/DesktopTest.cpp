#include "desktops/FrameDrag.h"
#include "desktops/Patience.h"
#include "desktops/Program.h"
#include "desktops/TestDisplay.h"
#include "support/HalvaneTest.h"

#include <QDeadlineTimer>
#include <QTest>

#include <memory>

namespace {

using Manager = TestDisplay::Manager;

constexpr int ClickAgain = 10'000;  ///< milliseconds
constexpr QPoint Minimise(798, 17); ///< in the frame
constexpr QPoint Close(830, 17);
constexpr QSize Usual(1280, 800);
constexpr QSize FrameSize(850, 620);

class DesktopTest : public HalvaneTest, public ::testing::WithParamInterface<Manager> {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        OpenDatabases();
        AddUser();
        CloseDatabases();
        program_ = std::make_unique<Program>(Folder());
    }
    /// Starts the program with its frame there and waits for it.
    void Show(QPoint place, QSize screen = Usual, QSize frame = FrameSize) {
        frameSize_ = frame;
        display_ = std::make_unique<TestDisplay>(screen, GetParam());
        program_->SetPlace(place);
        program_->Start(display_->Environment());
        Comes("the frame", [this] { return !Frame().isNull(); });
    }
    QRect Frame() const { return display_->Frame(frameSize_); }
    /// Waits for it as long as the program runs. After a failure nothing is waited for.
    template <class Condition> void Comes(const char* what, Condition condition) const {
        if (HasFailure())
            return;
        bool came = false;
        const auto isOver = [&] { return (came = condition()) || !program_->Runs(); };
        EXPECT_TRUE(QTest::qWaitFor(isOver, LongestWait) && came) << what << " does not come";
    }
    /// A click may be missed while the window is still being placed.
    template <class Condition>
    void Click(QPoint button, const char* what, Condition condition) const {
        QDeadlineTimer next(0);
        Comes(what, [&] {
            const QRect frame = Frame();
            if (next.hasExpired() && !frame.isNull()) {
                display_->Click(frame.topLeft() + button);
                next.setRemainingTime(ClickAgain);
            }
            return condition();
        });
    }
    void MinimiseFrame() const {
        Click(Minimise, "a screen without the frame", [this] { return Frame().isNull(); });
    }
    void CloseFrame() const {
        Click(Close, "the end", [this] { return !program_->Runs(); });
        EXPECT_TRUE(program_->EndedWell());
    }
    void DragTo(QPoint place) const {
        const QPoint start = Frame().topLeft();
        FrameDrag drag(*display_, start, place);
        if (GetParam() == Manager::None) { // the window follows the release
            display_->MoveTo(FrameDrag::Hand(place));
            drag.End();
        }
        Comes("the frame that is dragged", [&] { return drag.Follow(Frame()); });
        drag.End();
    }

    QSize frameSize_;
    std::unique_ptr<TestDisplay> display_;
    std::unique_ptr<Program> program_;
};

std::string NameOf(const ::testing::TestParamInfo<Manager>& manager) {
    static constexpr const char* names[] = {"None", "Openbox", "Weston"};
    return names[static_cast<size_t>(manager.param)];
}

INSTANTIATE_TEST_SUITE_P(Managers, DesktopTest,
                         ::testing::Values(Manager::None, Manager::Openbox, Manager::Weston),
                         NameOf);

/// Where the platform tells a window its place.
class PlaceTest : public DesktopTest {};
INSTANTIATE_TEST_SUITE_P(Managers, PlaceTest, ::testing::Values(Manager::None, Manager::Openbox),
                         NameOf);

class WaylandTest : public DesktopTest {};
INSTANTIATE_TEST_SUITE_P(Managers, WaylandTest, ::testing::Values(Manager::Weston), NameOf);

} // namespace

TEST_P(DesktopTest, TheFrameIsDraggedByItsTitleAndClosed) {
    Show({60, 50});
    DragTo({210, 110});
    DragTo({150, 90});
    CloseFrame();
}

/// Without a manager nothing can be minimised: the frame stays, and works.
TEST_P(DesktopTest, AMinimisedFrameComesBackWithASecondStart) {
    Show({60, 50});
    for (int time = 0; time < 2; ++time) {
        if (GetParam() == Manager::None)
            display_->Click(Frame().topLeft() + Minimise);
        else
            MinimiseFrame();
        EXPECT_TRUE(program_->StartAgain(display_->Environment()));
        Comes("the frame", [this] { return !Frame().isNull(); });
    }
    CloseFrame();
}

TEST_P(PlaceTest, TheFrameIsWhereItWasLeftAndIsKeptWhereItWasDragged) {
    Show({60, 50});
    Comes("the frame at its place", [this] { return Frame().topLeft() == QPoint(60, 50); });
    DragTo({210, 110});
    CloseFrame();
    EXPECT_EQ(program_->Place(), QPoint(210, 110));
}

/// The compositor decides about places; a later session under X11 finds its own again.
TEST_P(WaylandTest, ThePlaceOfASessionUnderX11IsKept) {
    Show({60, 50});
    CloseFrame();
    EXPECT_EQ(program_->Place(), QPoint(60, 50));
}
