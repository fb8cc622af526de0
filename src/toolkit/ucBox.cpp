#include "toolkit/ucBox.h"

#include "drawing/Style.h"
#include "toolkit/ucHeader.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int FrameWidth = 1;

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
    return rect().adjusted(FrameWidth, top, -FrameWidth, -FrameWidth);
}

void ucBox::resizeEvent(QResizeEvent*) {
    header_->setGeometry(FrameWidth, FrameWidth, width() - 2 * FrameWidth, TheStyle().headerHeight);
    Q_EMIT InnerChanged();
}

void ucBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), TheStyle().paper);
    DrawBorder(painter);
}

void ucBox::DrawBorder(QPainter& painter) const {
    const Style& style = TheStyle();
    painter.setPen(style.frame);
    painter.drawRoundedRect(QRectF(rect()).adjusted(.5, .5, -.5, -.5), style.boxRadius,
                            style.boxRadius);
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
