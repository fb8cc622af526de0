#include "core/MenuLabel.h"

#include "drawing/Style.h"
#include "toolkit/Accessible.h"
#include "toolkit/ControlInterface.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

// Pixels.
constexpr int TitlePadding = 10;
constexpr int TitleGap = 2;
constexpr int ItemIndent = 16;
constexpr int ItemRoom = 28; // right of the text

/// A title says whether its panel is open.
class LabelInterface : public ControlInterface {
public:
    using ControlInterface::ControlInterface;

    QAccessible::State state() const override {
        const auto* label = static_cast<MenuLabel*>(object());
        QAccessible::State state = ControlInterface::state();
        state.hasPopup = state.expandable = label->IsTitle();
        state.expanded = label->IsTitle() && label->IsOpen();
        state.collapsed = label->IsTitle() && !label->IsOpen();
        return state;
    }
};

} // namespace

MenuLabel::MenuLabel(Kind kind, const QString& name, const QString& caption, QWidget* parent)
    : DrawnControl(parent)
    , kind_(kind)
    , caption_(caption) {
    setObjectName(name);
    setAccessibleName(caption.trimmed());
    setFont(TheStyle().text);
    resize(sizeHint());
}

QSize MenuLabel::sizeHint() const {
    const int text = fontMetrics().horizontalAdvance(caption_.trimmed());
    if (kind_ == Kind::Title)
        return {text + 2 * TitlePadding, TheStyle().headerHeight};
    return {ItemIndent + text + ItemRoom, TheStyle().rowHeight};
}

QAccessibleInterface* MenuLabel::MakeAccessible() {
    return new LabelInterface(this);
}

void MenuLabel::SetHilited(bool hilited) {
    if (hilited_ == hilited)
        return;
    hilited_ = hilited;
    update();
}

void MenuLabel::SetOpen(bool open) {
    if (open_ == open)
        return;
    open_ = open;
    update();
    TellExpanded(this);
}

void MenuLabel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        Q_EMIT Click();
}

/// A title passes the move on, so that the frame resets its buttons.
void MenuLabel::mouseMoveEvent(QMouseEvent* event) {
    RaiseMouseMove(event);
    event->setAccepted(kind_ == Kind::Item);
}

/// An item keeps its highlight, because the keyboard continues from it.
void MenuLabel::leaveEvent(QEvent*) {
    if (kind_ == Kind::Title)
        SetHilited(false);
}

void MenuLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (kind_ == Kind::Title)
        PaintTitle(painter);
    else
        PaintItem(painter);
}

void MenuLabel::PaintTitle(QPainter& painter) const {
    const Style& style = TheStyle();
    painter.setRenderHint(QPainter::Antialiasing);
    if (open_ || hilited_ || FocusShown()) {
        const Style::ButtonFace& face = style.button[open_ ? 2 : 1];
        painter.setPen(FocusShown() ? QPen(style.frame, 2) : QPen(face.edge, 1));
        painter.setBrush(open_ ? face.ground.to : face.ground.from);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, TitleGap + .5, -1, -TitleGap - .5),
                                style.buttonRadius, style.buttonRadius);
    }
    painter.setPen(style.ink);
    painter.drawText(rect(), Qt::AlignCenter, caption_.trimmed());
}

void MenuLabel::PaintItem(QPainter& painter) const {
    const Style& style = TheStyle();
    if (hilited_)
        painter.fillRect(rect(), style.chosenRow);
    const QColor& ink = hilited_ ? style.chosenRowText : style.ink;
    painter.setPen(isEnabled() ? ink : style.disabledInk);
    painter.drawText(rect().adjusted(ItemIndent, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     caption_.trimmed());
}
