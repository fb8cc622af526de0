#include "toolkit/ucRadio.h"

#include "drawing/Pictures.h"
#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "toolkit/Accessible.h"
#include "toolkit/ControlInterface.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

namespace {

constexpr int CaptionGap = 6;
constexpr int RingRoom = 3;
constexpr QSize DotSize(16, 16);
constexpr QSize SwitchSize(26, 16);

/// "opMeal" of "opMeal2".
QStringView StemOf(QStringView name) {
    while (!name.isEmpty() && name.back().isDigit())
        name.chop(1);
    return name;
}

class RadioInterface : public ControlInterface {
public:
    using ControlInterface::ControlInterface;

    QAccessible::State state() const override {
        QAccessible::State state = ControlInterface::state();
        state.checkable = true;
        state.checked = static_cast<ucRadio*>(object())->Value();
        return state;
    }
};

} // namespace

ucRadio::ucRadio(QWidget* parent)
    : ucRadio(QString(), parent) {}

ucRadio::ucRadio(const QString& caption, QWidget* parent)
    : ucRadio(QStringLiteral("radio-on"), QStringLiteral("radio-off"), DotSize, caption, parent) {}

ucRadio::ucRadio(const QString& imgN, const QString& imgD, QSize pictureSize,
                 const QString& caption, QWidget* parent)
    : DrawnControl(parent)
    , imgN_(imgN)
    , imgD_(imgD)
    , pictureSize_(pictureSize) {
    setFocusPolicy(Qt::StrongFocus);
    SetCaption(caption);
}

ucRadioB::ucRadioB(const QString& caption, QWidget* parent)
    : ucRadio(QStringLiteral("switch-on"), QStringLiteral("switch-off"), SwitchSize, caption,
              parent) {}

void ucRadio::SetCaption(const QString& caption) {
    caption_ = caption;
    updateGeometry();
    resize(sizeHint());
    update();
    TellNameChanged(this);
}

void ucRadio::SetValue(bool value) {
    value_ = value;
    update();
    TellChecked(this);
}

QAccessibleInterface* ucRadio::MakeAccessible() {
    return new RadioInterface(this);
}

QSize ucRadio::sizeHint() const {
    const int picture = pictureSize_.width() + 2 * RingRoom;
    if (caption_.isEmpty())
        return {picture, TheStyle().fieldHeight};
    const double text = QFontMetricsF(SmoothedFont(font())).horizontalAdvance(caption_);
    return {picture + CaptionGap + qCeil(text) + RingRoom, TheStyle().fieldHeight};
}

ucRadio::Layout ucRadio::layoutRects() const {
    const QRect picture(QPoint(RingRoom, (height() - pictureSize_.height()) / 2), pictureSize_);
    const int left = picture.right() + 1 + CaptionGap;
    return {picture, QRect(left, 0, width() - left, height())};
}

void ucRadio::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Style& style = TheStyle();
    const Layout at = layoutRects();
    QColor tint = value_ || lit_ ? style.frame : style.fieldEdge;
    if (!isEnabled())
        tint = style.disabledPicture;
    Pictures::Paint(painter, at.imgButton, value_ ? imgN_ : imgD_, tint);
    const double textHeight = QFontMetricsF(SmoothedFont(font())).height();
    painter.setPen(isEnabled() ? style.ink : style.disabledInk);
    SmoothedPrint(painter, QPointF(at.caption.left(), height() / 2.0 - textHeight / 2), caption_,
                  font());
    if (FocusShown())
        PaintFocusRing(painter, rect(), style.fieldRadius);
}

void ucRadio::Activate() {
    SetValue(true);
    Q_EMIT Click();
}

void ucRadio::mousePressEvent(QMouseEvent* event) {
    BeginClick(event);
}

void ucRadio::mouseMoveEvent(QMouseEvent* event) {
    if (!lit_)
        update();
    lit_ = true;
    RaiseMouseMove(event);
}

void ucRadio::mouseReleaseEvent(QMouseEvent* event) {
    if (EndsClick(event))
        Activate();
}

void ucRadio::leaveEvent(QEvent*) {
    lit_ = false;
    update();
}

void ucRadio::changeEvent(QEvent* event) {
    DrawnControl::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        resize(sizeHint());
}

void ucRadio::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
        return Activate();
    case Qt::Key_Up:
    case Qt::Key_Left:
        return GoTo(-1);
    case Qt::Key_Down:
    case Qt::Key_Right:
        return GoTo(1);
    default:
        DrawnControl::keyPressEvent(event);
    }
}

QList<ucRadio*> ucRadio::Set() const {
    QList<ucRadio*> set;
    const auto radios =
        parentWidget()->findChildren<ucRadio*>(QString(), Qt::FindDirectChildrenOnly);
    for (ucRadio* radio : radios)
        if (StemOf(radio->objectName()) == StemOf(objectName()) && radio->isEnabled() &&
            radio->isVisible())
            set << radio;
    return set;
}

void ucRadio::GoTo(int step) {
    if (!parentWidget())
        return;
    const QList<ucRadio*> set = Set();
    const qsizetype at = set.indexOf(this);
    if (at < 0 || set.size() < 2)
        return;
    ucRadio* next = set[(at + step + set.size()) % set.size()];
    next->setFocus(Qt::TabFocusReason);
    next->Activate();
}
