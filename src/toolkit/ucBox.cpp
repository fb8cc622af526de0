#include "toolkit/ucBox.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "toolkit/ucHeader.h"

#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

namespace {

constexpr int FrameWidth = 1;
constexpr int RoundingRoom = 1; ///< at a fractional scale a child may cover a pixel beyond its end

} // namespace

ucBox::ucBox(QWidget* parent)
    : DrawnControl(parent)
    , header_(new ucHeader(this)) {
    header_->SetCenterAlignText(false);
    connect(header_, &ucHeader::Click, this, &ucBox::Click);
}

ucBox::ucBox(const QString& caption, QWidget* parent)
    : ucBox(parent) {
    SetCaption(caption);
}

QString ucBox::Caption() const {
    return header_->Caption();
}

void ucBox::SetCaption(const QString& caption) {
    header_->SetCaption(caption);
    header_->setVisible(!caption.isEmpty());
    setAccessibleName(caption);
}

QFont ucBox::Font() const {
    return header_->font();
}

void ucBox::SetFont(const QFont& font) {
    header_->setFont(font);
    header_->update();
}

QRect ucBox::Inner() const {
    const int top = Caption().isEmpty() ? FrameWidth : FrameWidth + header_->height();
    const qreal ratio = devicePixelRatioF();
    const int end = FrameWidth + (ratio > qFloor(ratio) ? RoundingRoom : 0);
    return rect().adjusted(FrameWidth, top, -end, -end);
}

void ucBox::resizeEvent(QResizeEvent*) {
    header_->setGeometry(FrameWidth, FrameWidth, width() - 2 * FrameWidth, TheStyle().headerHeight);
    Q_EMIT InnerChanged();
}

void ucBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PaintArea(painter, rect(), TheStyle().paper);
    if (!Caption().isEmpty())
        ucHeader::PaintBehind(painter, header_->geometry());
    DrawBorder(painter);
}

void ucBox::DrawBorder(QPainter& painter) const {
    PaintFrame(painter, rect(), TheStyle().frame, TheStyle().boxRadius);
}

void ucBox::mousePressEvent(QMouseEvent* event) {
    BeginClick(event);
}

void ucBox::mouseReleaseEvent(QMouseEvent* event) {
    if (EndsClick(event))
        Q_EMIT Click();
}

/// The header passes its moves on, so they arrive here too.
void ucBox::mouseMoveEvent(QMouseEvent* event) {
    RaiseMouseMove(event);
    event->ignore();
}
