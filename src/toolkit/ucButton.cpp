#include "toolkit/ucButton.h"

#include "drawing/SmoothedPrint.h"
#include "drawing/Twips.h"
#include "toolkit/Accessible.h"
#include "toolkit/Face.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

#include <utility>

namespace {

enum ButtonState { AtRest = 1, PointerOver = 2, Pressed = 3, Disabled = 4 };

/// By state minus 1, then by surface. The `_R` pictures are for rest, the `_N` pictures for under
/// the pointer.
constexpr const char* PictureNames[4][3] = {
    {"L_R", "M_R", "R_R"}, {"L_N", "M_N", "R_N"}, {"L_D", "M_D", "R_D"}, {"L_X", "M_X", "R_X"}};

constexpr int CapWidth = 10;
constexpr double CaptionLeft = 30; // twips

} // namespace

ucButton::ucButton(QWidget* parent)
    : DrawnControl(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setFont(TheStyle().control);
    resize(sizeHint());
}

ucButton::ucButton(const QString& caption, QWidget* parent)
    : ucButton(parent) {
    SetCaption(caption);
    resize(sizeHint());
}

void ucButton::SetCaption(const QString& caption) {
    caption_ = caption;
    updateGeometry();
    update();
    TellNameChanged(this);
}

void ucButton::SetMainAction(bool mainAction) {
    mainAction_ = mainAction;
    update();
}

void ucButton::SetState(int state) {
    if (state == state_)
        return;
    state_ = state;
    update();
}

void ucButton::Reset() {
    SetState(isEnabled() ? AtRest : Disabled);
}

void ucButton::changeEvent(QEvent* event) {
    DrawnControl::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        SetState(Disabled);
}

QSize ucButton::sizeHint() const {
    const double text = QFontMetricsF(SmoothedFont(font())).horizontalAdvance(caption_);
    const int margins = 2 * (CapWidth + Twips::ToPixels(CaptionLeft));
    return {qCeil(text) + margins, TheStyle().buttonHeight};
}

ucButton::Layout ucButton::layoutRects() const {
    const int cap = qMin(CapWidth, width() / 2);
    return {QRect(0, 0, cap, height()), QRect(cap, 0, width() - 2 * cap, height()),
            QRect(width() - cap, 0, cap, height())};
}

QString ucButton::PictureOn(int surface) const {
    return QLatin1String(PictureNames[state_ - 1][surface]);
}

const Style::ButtonFace& ucButton::Face() const {
    return (mainAction_ ? TheStyle().mainAction : TheStyle().button)[state_ - 1];
}

void ucButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PaintFace(painter, rect(), Face(), TheStyle().buttonRadius);
    PaintCaption(painter, layoutRects().picM);
    if (FocusShown())
        PaintFocusRing(painter, rect(), TheStyle().buttonRadius);
}

void ucButton::PaintCaption(QPainter& painter, const QRect& picM) const {
    const int left = Twips::ToPixels(CaptionLeft);
    const QFont font = FittingFont(this->font(), caption_, picM.width() - left);
    const double textHeight = QFontMetricsF(SmoothedFont(font)).height();
    const int sunk = state_ == Pressed ? 1 : 0;
    painter.setPen(Face().text);
    SmoothedPrint(painter, QPointF(picM.left() + left, picM.height() / 2.0 - textHeight / 2 + sunk),
                  caption_, font);
}

void ucButton::mousePressEvent(QMouseEvent* event) {
    BeginClick(event);
    SetState(Pressed);
}

void ucButton::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton) && isEnabled())
        SetState(IsInside(event->position()) ? Pressed : AtRest);
    else
        SetState(PointerOver);
    RaiseMouseMove(event);
}

void ucButton::mouseReleaseEvent(QMouseEvent* event) {
    SetState(IsInside(event->position()) ? PointerOver : AtRest);
    if (EndsClick(event))
        Q_EMIT Click();
}

void ucButton::Activate() {
    Reset();
    Q_EMIT Click();
}

void ucButton::keyPressEvent(QKeyEvent* event) {
    if (!IsPressKey(event))
        DrawnControl::keyPressEvent(event);
    else if (event->key() == Qt::Key_Space)
        HoldSpace();
    else
        Activate();
}

void ucButton::HoldSpace() {
    spaceHeld_ = true;
    SetState(Pressed);
}

void ucButton::keyReleaseEvent(QKeyEvent* event) {
    const bool spaceUp = event->key() == Qt::Key_Space && !event->isAutoRepeat();
    if (spaceUp && std::exchange(spaceHeld_, false))
        Activate();
    else
        DrawnControl::keyReleaseEvent(event);
}

void ucButton::resizeEvent(QResizeEvent*) {
    Reset();
    update();
}

void ucButton::showEvent(QShowEvent*) {
    Reset();
}

/// The platform reports that the pointer has left; AllOff of the screen does the same.
void ucButton::leaveEvent(QEvent*) {
    if (state_ == PointerOver)
        Reset();
}

void ucButton::focusOutEvent(QFocusEvent* event) {
    spaceHeld_ = false;
    if (state_ == Pressed)
        Reset();
    DrawnControl::focusOutEvent(event);
}
