#include "toolkit/ucButtonA.h"

#include "drawing/Pictures.h"
#include "drawing/SmoothedPrint.h"
#include "toolkit/Accessible.h"
#include "toolkit/ControlInterface.h"
#include "toolkit/Face.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int BorderRoom = 5;
constexpr int ChosenBar = 3;
constexpr int TilePictureTop = 13;
constexpr int TileCaptionGap = 4;

/// The default ink of each picture.
constexpr QColor Style::*PlainInks[3] = {&Style::quietInk, &Style::frame, &Style::heading};

QColor TileInk(int image) {
    const Style& style = TheStyle();
    return image == 0 ? style.navigationInk : style.windowInk;
}

class ViewButtonInterface : public ControlInterface {
public:
    using ControlInterface::ControlInterface;

    QAccessible::Role role() const override {
        return Button()->IsOneOfASet() ? QAccessible::RadioButton : QAccessible::Button;
    }
    QAccessible::State state() const override {
        QAccessible::State state = ControlInterface::state();
        state.checkable = Button()->IsOneOfASet();
        state.checked = Button()->Chosen();
        return state;
    }

private:
    ucButtonA* Button() const { return static_cast<ucButtonA*>(object()); }
};

} // namespace

ucButtonA::ucButtonA(QWidget* parent)
    : DrawnControl(parent) {
    setFocusPolicy(Qt::StrongFocus);
    Fit();
}

void ucButtonA::SetPictures(const QString& name, const QString& toolTip) {
    Set_img_NORM(name);
    Set_img_ROLL(name);
    Set_img_DOWN(name);
    Set_acToolTip(toolTip);
}

void ucButtonA::Set_img_NORM(const QString& name) {
    normal_ = name;
    shown_ = Image::Normal;
    Fit();
}

void ucButtonA::Set_img_ROLL(const QString& name) {
    roll_ = name;
    update();
}

void ucButtonA::Set_img_DOWN(const QString& name) {
    down_ = name;
    update();
}

void ucButtonA::Set_acToolTip(const QString& tip) {
    setToolTip(tip);
    setAccessibleName(tip.isEmpty() ? captionBelow_ : tip);
}

QString ucButtonA::Shown() const {
    static const char* const names[] = {"img_NORM", "img_ROLL", "img_DOWN"};
    return QLatin1String(names[static_cast<int>(shown_)]);
}

QString ucButtonA::PictureShown() const {
    const QString* const pictures[] = {&normal_, &roll_, &down_};
    const QString& picture = *pictures[static_cast<int>(shown_)];
    return picture.isEmpty() ? normal_ : picture;
}

void ucButtonA::SetChosen(bool chosen) {
    oneOfASet_ = true;
    if (chosen == chosen_)
        return;
    chosen_ = chosen;
    update();
    TellChecked(this);
}

void ucButtonA::SetPictureSize(QSize size) {
    pictureSize_ = size;
    Fit();
}

void ucButtonA::SetBordered(bool bordered) {
    bordered_ = bordered;
    Fit();
}

void ucButtonA::SetCaptionBelow(const QString& caption) {
    captionBelow_ = caption;
    if (accessibleName().isEmpty())
        setAccessibleName(caption);
    Fit();
}

void ucButtonA::SetTints(const QColor& rest, const QColor& roll, const QColor& down) {
    tints_[0] = rest;
    tints_[1] = roll;
    tints_[2] = down;
    update();
}

void ucButtonA::Show(Image image) {
    if (image == shown_)
        return;
    shown_ = image;
    update();
}

void ucButtonA::Reset() {
    Show(Image::Normal);
}

void ucButtonA::Fit() {
    updateGeometry();
    resize(sizeHint());
    update();
}

QAccessibleInterface* ucButtonA::MakeAccessible() {
    return new ViewButtonInterface(this);
}

QSize ucButtonA::sizeHint() const {
    if (!captionBelow_.isEmpty())
        return {TheStyle().navigationWidth, TheStyle().navigationTile};
    const int room = bordered_ ? BorderRoom : 0;
    return pictureSize_ + QSize(2 * room, 2 * room);
}

ucButtonA::Layout ucButtonA::layoutRects() const {
    QRect picture(QPoint(), pictureSize_);
    picture.moveCenter(rect().center());
    if (captionBelow_.isEmpty())
        return {picture, QRect()};
    picture.moveTop(TilePictureTop);
    const int captionTop = picture.bottom() + 1 + TileCaptionGap;
    return {picture, QRect(0, captionTop, width(), height() - captionTop)};
}

QColor ucButtonA::InkShown() const {
    const Style& style = TheStyle();
    const int image = static_cast<int>(shown_);
    const bool tile = !captionBelow_.isEmpty();
    if (!isEnabled())
        return tile ? style.navigationDisabledInk : style.disabledPicture;
    if (chosen_)
        return style.heading;
    if (tints_[image].isValid())
        return tints_[image];
    return tile ? TileInk(image) : style.*PlainInks[image];
}

void ucButtonA::PaintNavigationGround(QPainter& painter) const {
    const Style& style = TheStyle();
    if (chosen_) {
        painter.fillRect(rect(), style.canvas);
        painter.fillRect(QRect(0, 0, ChosenBar, height()), style.frame);
    } else if (shown_ != Image::Normal && isEnabled()) {
        painter.fillRect(rect(),
                         shown_ == Image::Roll ? style.navigationLit : style.navigationPressed);
    }
}

void ucButtonA::PaintGround(QPainter& painter) const {
    const Style& style = TheStyle();
    if (!captionBelow_.isEmpty())
        return PaintNavigationGround(painter);
    const bool lit = isEnabled() && shown_ != Image::Normal;
    if (!bordered_ && !(lit && style.facesLitPictures))
        return;
    Style::ButtonFace face = style.button[isEnabled() ? static_cast<int>(shown_) : 3];
    if (chosen_)
        face = {style.chosenDay, style.frame, style.heading};
    PaintFace(painter, rect(), face, style.buttonRadius);
}

void ucButtonA::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Layout at = layoutRects();
    PaintGround(painter);
    const int sunk = bordered_ && shown_ == Image::Down ? 1 : 0;
    Pictures::Paint(painter, at.imgButton.translated(0, sunk), PictureShown(), InkShown());
    if (!captionBelow_.isEmpty()) {
        const QFont font = chosen_ ? TheStyle().smallStrong : TheStyle().small;
        const double width = QFontMetricsF(SmoothedFont(font)).horizontalAdvance(captionBelow_);
        painter.setPen(InkShown());
        SmoothedPrint(painter, QPointF(at.caption.center().x() + .5 - width / 2, at.caption.top()),
                      captionBelow_, font);
    }
    if (FocusShown())
        PaintFocusRing(painter, rect(), TheStyle().buttonRadius);
}

void ucButtonA::mousePressEvent(QMouseEvent* event) {
    BeginClick(event);
    Show(Image::Down);
}

void ucButtonA::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton))
        Show(IsInside(event->position()) ? Image::Down : Image::Normal);
    else
        Show(Image::Roll);
    RaiseMouseMove(event);
}

void ucButtonA::mouseReleaseEvent(QMouseEvent* event) {
    Reset();
    if (EndsClick(event))
        Activate();
}

void ucButtonA::Activate() {
    Reset();
    repaint();
    Q_EMIT Click();
}

void ucButtonA::keyPressEvent(QKeyEvent* event) {
    if (IsPressKey(event))
        Activate();
    else
        DrawnControl::keyPressEvent(event);
}

void ucButtonA::leaveEvent(QEvent*) {
    if (shown_ == Image::Roll)
        Reset();
}

void ucButtonA::changeEvent(QEvent* event) {
    DrawnControl::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        Reset();
}
