#include "toolkit/TitleControl.h"

#include "drawing/Style.h"
#include "toolkit/DragOutline.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include <utility>

TitleControl::TitleControl(QWidget* parent)
    : PaintedPanel(parent) {
    setFont(TheStyle().title);
}

TitleControl::~TitleControl() = default;

void TitleControl::mousePressEvent(QMouseEvent* event) {
    PaintedPanel::mousePressEvent(event);
    pressed_ = event->position().toPoint();
    platformMoves_ = false;
}

void TitleControl::mouseMoveEvent(QMouseEvent* event) {
    const bool held = event->buttons().testFlag(Qt::LeftButton);
    if (held && !dragging_ && !platformMoves_ && event->position().toPoint().x() != pressed_.x())
        BeginDrag();
    if (held && dragging_)
        DrawOutline(event->globalPosition().toPoint());
    PaintedPanel::mouseMoveEvent(event);
}

void TitleControl::BeginDrag() {
    QWindow* moved = window()->windowHandle();
    platformMoves_ = moved && moved->startSystemMove();
    dragging_ = !platformMoves_;
}

void TitleControl::DrawOutline(QPoint cursor) {
    const QPoint inWindow = mapTo(window(), pressed_);
    outline_ = QRect(cursor - inWindow, window()->size());
    if (!band_)
        band_ = std::make_unique<DragOutline>();
    band_->Draw(outline_);
}

void TitleControl::mouseReleaseEvent(QMouseEvent* event) {
    if (!EndDrag())
        return PaintedPanel::mouseReleaseEvent(event);
    window()->move(outline_.topLeft());
    outline_ = QRect();
    Q_EMIT Moved();
}

void TitleControl::hideEvent(QHideEvent*) {
    EndDrag();
}

bool TitleControl::EndDrag() {
    band_.reset();
    return std::exchange(dragging_, false);
}

void TitleControl::PaintTitle(QPoint picM, QPointF place) {
    QPainter painter(this);
    const Style& style = TheStyle();
    PaintGround(painter, style.window.from, style.window.to);
    PrintCaption(painter, style.windowInk, picM + place);
}
