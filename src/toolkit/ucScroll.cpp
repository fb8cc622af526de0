#include "toolkit/ucScroll.h"

#include "drawing/DevicePixels.h"
#include "drawing/Pictures.h"
#include "runtime/Round.h"
#include "toolkit/Accessible.h"
#include "toolkit/ControlInterface.h"
#include "toolkit/Face.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>

namespace {

constexpr int ThumbHeight = 36;
constexpr int LeastTravel = 8;
constexpr int RepeatDelay = 400; // milliseconds
constexpr int RepeatPeriod = 50; // milliseconds
constexpr int WheelNotch = 120;
constexpr int StepsPerNotch = 3;

struct KeyStep {
    int key;
    int small;
    int large;
};

/// What a key adds, in small and large steps.
constexpr KeyStep KeySteps[] = {
    {Qt::Key_Up, -1, 0}, {Qt::Key_Down, 1, 0}, {Qt::Key_PageUp, 0, -1}, {Qt::Key_PageDown, 0, 1}};

class ScrollInterface : public ControlInterface, public QAccessibleValueInterface {
public:
    using ControlInterface::ControlInterface;

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return ControlInterface::interface_cast(type);
    }
    QVariant currentValue() const override { return Bar()->Value(); }
    void setCurrentValue(const QVariant& value) override { Bar()->SetValue(value.toInt()); }
    QVariant maximumValue() const override { return Bar()->Max(); }
    QVariant minimumValue() const override { return Bar()->Min(); }
    QVariant minimumStepSize() const override { return Bar()->SmallChange(); }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? QString::number(Bar()->Value())
                                          : ControlInterface::text(kind);
    }

private:
    ucScroll* Bar() const { return static_cast<ucScroll*>(object()); }
};

} // namespace

ucScroll::ucScroll(QWidget* parent)
    : DrawnControl(parent)
    , repeat_(new QTimer(this)) {
    setFocusPolicy(Qt::TabFocus);
    repeat_->setTimerType(Qt::PreciseTimer);
    connect(repeat_, &QTimer::timeout, this, &ucScroll::Repeat);
    resize(sizeHint());
}

void ucScroll::SetValue(int value) {
    value_ = qMax(qMin(value, max_), min_);
    TellValueChanged(this, value_);
    Q_EMIT Change(value_);
    PlaceThumb();
}

/// Min does not matter. With a Max of 0 the thumb is at the top.
void ucScroll::PlaceThumb() {
    const int top = max_ == 0 ? 0 : Round(double(value_) / max_ * travel_);
    if (top == thumbTop_)
        return;
    thumbTop_ = top;
    update();
}

void ucScroll::InitControls() {
    const Layout at = layoutRects();
    travel_ = at.picSlot.height() - at.picTB.height();
    PlaceThumb();
    update();
}

ucScroll::Layout ucScroll::layoutRects() const {
    const int arrow = qMin(width(), height() / 2);
    const QRect slot(0, arrow, width(), height() - 2 * arrow);
    const int thumb = qBound(0, slot.height() - LeastTravel, ThumbHeight);
    return {QRect(0, 0, width(), arrow), QRect(0, height() - arrow, width(), arrow), slot,
            QRect(0, arrow + thumbTop_, width(), thumb)};
}

QAccessibleInterface* ucScroll::MakeAccessible() {
    return new ScrollInterface(this);
}

QSize ucScroll::sizeHint() const {
    const int side = TheStyle().scrollWidth;
    return {side, 2 * side + ThumbHeight + LeastTravel};
}

void ucScroll::resizeEvent(QResizeEvent*) {
    InitControls();
}

void ucScroll::showEvent(QShowEvent*) {
    InitControls();
}

void ucScroll::hideEvent(QHideEvent*) {
    EndPress();
}

ucScroll::Part ucScroll::PartAt(QPoint place) const {
    const Layout at = layoutRects();
    if (at.imgUp.contains(place))
        return Part::Up;
    if (at.imgDown.contains(place))
        return Part::Down;
    if (!at.picSlot.contains(place))
        return Part::None;
    const int y = place.y() - at.picSlot.top();
    const bool onThumb = y >= thumbTop_ && y <= thumbTop_ + at.picTB.height();
    return onThumb ? Part::Thumb : Part::Slot;
}

void ucScroll::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    const QPoint place = PixelOf(event);
    pressed_ = PartAt(place);
    update();
    if (pressed_ == Part::Down) {
        SetValue(value_ + smallChange_);
        StartRepeat(smallChange_, travel_);
    } else if (pressed_ == Part::Up) {
        SetValue(value_ - smallChange_);
        StartRepeat(-smallChange_, 0);
    } else if (pressed_ != Part::None) {
        PressSlot(place.y() - layoutRects().picSlot.top());
    }
}

void ucScroll::PressSlot(int y) {
    if (pressed_ == Part::Thumb) {
        dragOffset_ = thumbTop_ - y;
        return;
    }
    const int step = y > thumbTop_ ? largeChange_ : -largeChange_;
    SetValue(value_ + step);
    StartRepeat(step, y);
}

void ucScroll::StartRepeat(int step, int limit) {
    repeatStep_ = step;
    repeatLimit_ = limit;
    repeat_->start(RepeatDelay);
}

void ucScroll::Repeat() {
    repeat_->setInterval(RepeatPeriod);
    SetValue(value_ + repeatStep_);
    if (RepeatIsOver())
        EndPress();
}

bool ucScroll::RepeatIsOver() const {
    const bool past = repeatStep_ > 0 ? thumbTop_ > repeatLimit_ : thumbTop_ < repeatLimit_;
    return past || value_ == max_ || value_ == min_;
}

void ucScroll::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton) && dragOffset_ != NoDrag)
        DragTo(PixelOf(event).y() - layoutRects().picSlot.top());
    const Part under = PartAt(PixelOf(event));
    if (under != lit_)
        update();
    lit_ = under;
    RaiseMouseMove(event);
}

/// A drag raises Change twice for each move.
void ucScroll::DragTo(int y) {
    if (travel_ <= 0)
        return;
    const int top = qMin(qMax(y + dragOffset_, 0), travel_);
    SetValue(Round(double(top) / travel_ * max_));
    Q_EMIT Change(value_);
}

void ucScroll::mouseReleaseEvent(QMouseEvent*) {
    EndPress();
}

void ucScroll::EndPress() {
    repeat_->stop();
    dragOffset_ = NoDrag;
    pressed_ = Part::None;
    update();
}

void ucScroll::leaveEvent(QEvent*) {
    lit_ = Part::None;
    update();
}

void ucScroll::wheelEvent(QWheelEvent* event) {
    Wheel(event);
}

/// The rest of a fine wheel's turn counts for the next one.
void ucScroll::Wheel(QWheelEvent* event) {
    wheelRest_ -= event->angleDelta().y() * StepsPerNotch * smallChange_;
    const int step = wheelRest_ / WheelNotch;
    wheelRest_ -= step * WheelNotch;
    if (step != 0)
        SetValue(value_ + step);
    event->accept();
}

void ucScroll::keyPressEvent(QKeyEvent* event) {
    for (const KeyStep& row : KeySteps)
        if (event->key() == row.key)
            return SetValue(value_ + row.small * smallChange_ + row.large * largeChange_);
    if (event->key() == Qt::Key_Home)
        SetValue(min_);
    else if (event->key() == Qt::Key_End)
        SetValue(max_);
    else
        DrawnControl::keyPressEvent(event);
}

void ucScroll::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Layout at = layoutRects();
    painter.fillRect(rect(), TheStyle().scrollSlot);
    PaintArrow(painter, at.imgUp, Part::Up);
    PaintArrow(painter, at.imgDown, Part::Down);
    PaintThumb(painter, at.picTB);
    PaintEdge(painter, rect(), Qt::LeftEdge, TheStyle().rule);
    if (FocusShown())
        PaintFocusRing(painter, at.picTB.adjusted(1, 0, 0, 0), TheStyle().fieldRadius);
    Q_EMIT SlotPainted();
}

void ucScroll::PaintArrow(QPainter& painter, const QRect& place, Part part) const {
    const Style& style = TheStyle();
    const bool down = pressed_ == part;
    if (down || lit_ == part)
        painter.fillRect(place, down ? style.button[2].ground.from : style.header.from);
    const QRect picture = place.adjusted(2, 2, -2, -2).translated(0, down ? 1 : 0);
    const QString name =
        part == Part::Up ? QStringLiteral("arrow-up") : QStringLiteral("arrow-down");
    Pictures::Paint(painter, picture, name, lit_ == part ? style.heading : style.quietInk);
}

void ucScroll::PaintThumb(QPainter& painter, const QRect& place) const {
    const int state = pressed_ == Part::Thumb ? 2 : lit_ == Part::Thumb ? 1 : 0;
    const Style::ButtonFace& face = TheStyle().button[state];
    const QRect body = place.adjusted(2, 0, -1, 0);
    PaintFace(painter, body, face, TheStyle().fieldRadius);
    const QRect grip(body.left() + 4, body.center().y(), body.width() - 8, 1);
    for (int shift = -3; shift <= 3; shift += 3)
        PaintEdge(painter, grip.translated(0, shift), Qt::TopEdge, face.edge);
}
