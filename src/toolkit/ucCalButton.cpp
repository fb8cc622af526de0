#include "toolkit/ucCalButton.h"

#include "drawing/SmoothedPrint.h"
#include "drawing/Twips.h"
#include "toolkit/Accessible.h"
#include "toolkit/Face.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

namespace {

enum CalButtonState { AtRest = 1, PointerOver = 2, Pressed = 3 };

constexpr const char* PictureNames[3] = {"img_N", "img_R", "img_D"};
constexpr int FrameWidth = 2;
constexpr double CaptionLeft = 30; // twips, on the surface
constexpr int SurfaceLeft = 7;
constexpr int SurfaceHeight = 33; ///< at most: on a high button the caption stays near the top

} // namespace

ucCalButton::ucCalButton(QWidget* parent)
    : DrawnControl(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setFont(TheStyle().title);
    resize(sizeHint());
}

void ucCalButton::SetCaption(const QString& caption) {
    caption_ = caption;
    updateGeometry();
    update();
    TellNameChanged(this);
}

QString ucCalButton::PictureOn() const {
    return QLatin1String(PictureNames[state_ - 1]);
}

void ucCalButton::SetState(int state) {
    if (state == state_)
        return;
    state_ = state;
    update();
}

void ucCalButton::Reset() {
    SetState(AtRest);
}

QSize ucCalButton::sizeHint() const {
    const double text = QFontMetricsF(SmoothedFont(font())).horizontalAdvance(caption_);
    return {qCeil(text) + 2 * (SurfaceLeft + Twips::ToPixels(CaptionLeft)),
            TheStyle().buttonHeight};
}

QRect ucCalButton::picM() const {
    return {SurfaceLeft, 0, width() - SurfaceLeft, qMin(height(), SurfaceHeight)};
}

void ucCalButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Style::ButtonFace& face = TheStyle().dayButton[state_ - 1];
    PaintFace(painter, rect(), face, 0, FrameWidth);
    const QPointF corner = picM().topLeft();
    const double textHeight = QFontMetricsF(SmoothedFont(font())).height();
    painter.setPen(face.text);
    SmoothedPrint(painter,
                  corner +
                      QPointF(Twips::ToPixels(CaptionLeft), picM().height() / 2.0 - textHeight / 2),
                  caption_, font());
    if (FocusShown())
        PaintFocusRing(painter, rect().adjusted(FrameWidth, FrameWidth, -FrameWidth, -FrameWidth),
                       0);
}

/// One routine for press, move and release. A release still reports the left button, so the button
/// looks pressed until the next move.
void ucCalButton::Track(bool leftButton, QPointF place) {
    if (!leftButton || !isEnabled())
        SetState(PointerOver);
    else
        SetState(IsInside(place) ? Pressed : AtRest);
}

void ucCalButton::mousePressEvent(QMouseEvent* event) {
    BeginClick(event);
    Track(event->button() == Qt::LeftButton, event->position());
}

void ucCalButton::mouseMoveEvent(QMouseEvent* event) {
    Track(event->buttons().testFlag(Qt::LeftButton), event->position());
    RaiseMouseMove(event);
}

void ucCalButton::mouseReleaseEvent(QMouseEvent* event) {
    Track(event->button() == Qt::LeftButton, event->position());
    if (EndsClick(event))
        Q_EMIT Click();
}

void ucCalButton::keyPressEvent(QKeyEvent* event) {
    if (IsPressKey(event))
        Activate();
    else
        DrawnControl::keyPressEvent(event);
}

void ucCalButton::leaveEvent(QEvent*) {
    if (state_ == PointerOver)
        Reset();
}
