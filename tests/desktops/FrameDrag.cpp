#include "desktops/FrameDrag.h"

#include "desktops/TestDisplay.h"

namespace {

constexpr QPoint Grip(300, 28); ///< of the title, in the frame
constexpr QPoint Step(1, 0);    ///< a drag begins with a change of x
constexpr int LooksOfARest = 20;
constexpr int MostRefusals = 10; ///< before the drag begins again

} // namespace

FrameDrag::FrameDrag(const TestDisplay& display, QPoint start, QPoint end)
    : display_(display)
    , start_(start)
    , end_(end)
    , pointer_(Hand(end))
    , last_(start) {
    Begin();
}

QPoint FrameDrag::Hand(QPoint frame) {
    return frame + Grip;
}

void FrameDrag::Begin() const {
    display_.Reach(Hand(start_));
    display_.Press();
    display_.MoveTo(Hand(start_) + Step);
}

bool FrameDrag::Follow(const QRect& frame) {
    const QPoint now = frame.topLeft();
    looks_ = frame.isNull() || now != last_ ? 0 : looks_ + 1;
    last_ = now;
    if (looks_ < LooksOfARest)
        return false;
    looks_ = 0;
    if (now != end_)
        Lead(now);
    return now == end_;
}

/// The pointer moves even if it is there already: the manager may have missed it. It may have
/// missed the whole drag, if the pointer left the title too early.
void FrameDrag::Lead(QPoint frame) {
    if (frame != start_)
        pointer_ += end_ - frame;
    else if (++refusals_ % MostRefusals == 0)
        return BeginAgain();
    display_.MoveTo(pointer_ + Step);
    display_.MoveTo(pointer_);
}

void FrameDrag::BeginAgain() const {
    End();
    Begin();
}

void FrameDrag::End() const {
    display_.Release();
}
