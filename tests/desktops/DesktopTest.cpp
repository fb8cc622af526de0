#include "desktops/Program.h"
#include "desktops/TestDisplay.h"
#include "support/HalvaneTest.h"

#include <QTest>

#include <memory>

namespace {

using Manager = TestDisplay::Manager;

constexpr int LongestWait = 90'000; ///< milliseconds; a loaded machine is slow
constexpr QPoint Grip(300, 28);     ///< of the title, in the frame
constexpr int MovesOfADrag = 30;
constexpr QPoint Nowhere(2, 798);
constexpr QPoint Minimise(798, 17);
constexpr QPoint Close(830, 17);
constexpr QSize Usual(1280, 800);

class DesktopTest : public HalvaneTest, public ::testing::WithParamInterface<Manager> {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        OpenDatabases();
        AddUser();
        CloseDatabases();
        program_ = std::make_unique<Program>(Folder());
    }
    void TearDown() override {
        if (program_->Runs() && !Frame().isNull())
            CloseFrame();
        HalvaneTest::TearDown();
    }
    /// Starts the program with its frame there and waits for it.
    void Show(QSize screen, QPoint place) {
        display_ = std::make_unique<TestDisplay>(screen, GetParam());
        program_->SetPlace(place);
        program_->Start(display_->Environment());
        ASSERT_TRUE(Comes([this] { return Frame().size() == QSize(850, 620); }));
    }
    QRect Frame() const { return display_->Frame(); }
    void CloseFrame() {
        ClickUntilItIsGone(Close);
        EXPECT_TRUE(program_->Ended());
    }
    /// A manager that still places the window may miss a click.
    void ClickUntilItIsGone(QPoint button) {
        EXPECT_TRUE(Comes([&] {
            const QRect frame = Frame();
            if (!frame.isNull())
                display_->Click(frame.topLeft() + button);
            return frame.isNull();
        }));
    }
    /// Openbox moves the window from where the pointer is when the drag begins; the others, from
    /// where it was pressed.
    static QPoint Slip() { return GetParam() == Manager::Openbox ? QPoint(1, 0) : QPoint(); }
    /// Without a manager the window follows the release.
    void DragTo(QPoint place) const {
        const auto isThere = [&] { return Frame().topLeft() == place; };
        if (GetParam() == Manager::None) {
            Drag(place, 1);
            EXPECT_TRUE(Comes(isThere));
            return;
        }
        EXPECT_TRUE(Comes([&] {
            Drag(place, MovesOfADrag);
            return isThere();
        })) << Frame().x()
            << ' ' << Frame().y();
    }
    /// A manager takes the pointer a while after the drag has begun, so the pointer moves until the
    /// window has followed.
    void Drag(QPoint place, int moves) const {
        const QRect frame = Frame();
        if (frame.isNull()) // the pointer covers a part of its upper edge
            return display_->MoveTo(Nowhere);
        const QPoint begin = frame.topLeft() + Grip;
        const QPoint end = place + Grip + Slip();
        display_->Press(begin);
        display_->MoveTo(begin + QPoint(1, 0));
        for (int move = 0; move < moves && Frame().topLeft() != place; ++move) {
            display_->MoveTo(end + QPoint(1, 0));
            display_->MoveTo(end);
        }
        display_->Release();
    }
    template <class Condition> static bool Comes(Condition condition) {
        return QTest::qWaitFor(condition, LongestWait);
    }

    std::unique_ptr<TestDisplay> display_;
    std::unique_ptr<Program> program_;
};

/// Where a program may take the pointer, and the platform tells a window its place and brings it to
/// the front.
class PlaceTest : public DesktopTest {};

std::string NameOf(const ::testing::TestParamInfo<Manager>& manager) {
    static constexpr const char* names[] = {"None", "Openbox", "Weston"};
    return names[static_cast<size_t>(manager.param)];
}

INSTANTIATE_TEST_SUITE_P(Managers, PlaceTest, ::testing::Values(Manager::None, Manager::Openbox),
                         NameOf);

} // namespace

TEST_P(PlaceTest, TheFrameIsDraggedByItsTitleAndClosed) {
    Show(Usual, {60, 50});
    DragTo({210, 110});
    CloseFrame();
}

/// Without a manager nothing can be minimised: the frame stays, and works.
TEST_P(PlaceTest, AMinimisedFrameComesBackWithASecondStart) {
    Show(Usual, {60, 50});
    if (GetParam() == Manager::None)
        display_->Click(Frame().topLeft() + Minimise);
    else
        ClickUntilItIsGone(Minimise);
    EXPECT_TRUE(program_->StartAgain(display_->Environment()));
    EXPECT_TRUE(Comes([this] { return !Frame().isNull(); }));
}

TEST_P(PlaceTest, TheFrameIsWhereItWasLeftAndIsKeptWhereItWasDragged) {
    Show(Usual, {60, 50});
    EXPECT_TRUE(Comes([this] { return Frame().topLeft() == QPoint(60, 50); }));
    DragTo({210, 110});
    CloseFrame();
    EXPECT_EQ(program_->Place(), QPoint(210, 110));
}

class WaylandTest : public DesktopTest {};
INSTANTIATE_TEST_SUITE_P(Managers, WaylandTest, ::testing::Values(Manager::Weston), NameOf);

/// The compositor decides about places; a later session under X11 finds its own again.
TEST_P(WaylandTest, ThePlaceOfASessionUnderX11IsKept) {
    Show(Usual, {60, 50});
    CloseFrame();
    EXPECT_EQ(program_->Place(), QPoint(60, 50));
}
