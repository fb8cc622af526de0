#include "toolkit/ucDropDown.h"

#include "drawing/DevicePixels.h"
#include "drawing/Pictures.h"
#include "drawing/SmoothedPrint.h"
#include "runtime/Convert.h"
#include "toolkit/Accessible.h"
#include "toolkit/ControlInterface.h"
#include "toolkit/DropItem.h"
#include "toolkit/DropPanel.h"
#include "toolkit/Face.h"
#include "toolkit/SpokenText.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr const char* PictureNames[] = {"img_N", "img_R", "img_D"};
constexpr QColor Style::*ArrowInks[] = {&Style::frame, &Style::heading, &Style::heading};
constexpr int ArrowWidth = 22;
constexpr int PictureSize = 14;
constexpr int TextLeft = 8;
constexpr int PlainWidth = 110;

QString WithoutLeadingBlanks(const QString& text) {
    qsizetype first = 0;
    while (first < text.size() && text[first] == u' ')
        ++first;
    return text.mid(first);
}

/// Its text is the selected item. Its child is the list of the items, which can be pressed while it
/// is open.
class DropDownInterface : public ControlInterface, public SpokenText {
public:
    using ControlInterface::ControlInterface;

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        return ControlInterface::interface_cast(type);
    }
    using SpokenText::text;
    QAccessible::State state() const override {
        QAccessible::State state = ControlInterface::state();
        state.expandable = true;
        state.expanded = List()->IsOpen();
        state.collapsed = !state.expanded;
        return state;
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? Spoken() : ControlInterface::text(kind);
    }

protected:
    QString Spoken() const override { return List()->Text().trimmed(); }

private:
    ucDropDown* List() const { return static_cast<ucDropDown*>(object()); }
};

} // namespace

ucDropDown::ucDropDown(QWidget* parent)
    : DrawnControl(parent)
    , picBox_(new DropPanel(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setFont(TheStyle().text);
    picBox_->hide();
    connect(picBox_, &DropPanel::Hovered, picBox_, &DropPanel::Hilite);
    connect(picBox_, &DropPanel::Picked, this, &ucDropDown::Pick);
    resize(sizeHint());
}

QString ucDropDown::Text() const {
    return WithoutLeadingBlanks(myName_);
}

void ucDropDown::SetText(const QString& text) {
    myName_ = text;
    update();
    TellTextChanged(this, Text());
}

int ucDropDown::aHEIGHT() const {
    return picBox_->PanelHeight();
}

void ucDropDown::Set_aHEIGHT(int height) {
    picBox_->SetPanelHeight(height);
    FitHeight(IsOpen());
}

bool ucDropDown::IsOpen() const {
    return !picBox_->isHidden();
}

QString ucDropDown::PictureOn() const {
    return QLatin1String(PictureNames[static_cast<int>(arrow_)]);
}

void ucDropDown::AddItem(const QString& text, qint32 tag) {
    picBox_->AddItem(WithoutLeadingBlanks(text) + "  ", tag);
}

void ucDropDown::SetIndex(qint16 index) {
    Take(index);
}

void ucDropDown::Take(int index) {
    const DropItem& item = picBox_->Item(index);
    index_ = index;
    picBox_->Choose(index);
    selectedID_ = ToInteger(item.Tag());
    SetText(item.Caption());
}

void ucDropDown::Pick(int index) {
    Take(index);
    SetOpen(false);
    Q_EMIT Click();
}

void ucDropDown::Reset() {
    SetOpen(false);
}

void ucDropDown::ResetPic() {
    ShowArrow(Arrow::Normal);
}

void ucDropDown::Activate() {
    setFocus(Qt::OtherFocusReason);
    SetOpen(!IsOpen());
}

void ucDropDown::SetOpen(bool open) {
    ShowArrow(Arrow::Normal);
    if (open == IsOpen())
        return;
    FitHeight(open);
    picBox_->Hilite(0);
    picBox_->setVisible(open);
    if (open) {
        raise();
        qApp->installEventFilter(this);
        if (index_ > 0)
            picBox_->Bring(index_);
    } else {
        qApp->removeEventFilter(this);
    }
    update();
    TellExpanded(this);
}

void ucDropDown::FitHeight(bool open) {
    const int panel = open ? picBox_->height() : 0;
    resize(width(), layoutRects().picSelItem.height() + panel);
}

void ucDropDown::ShowArrow(Arrow picture) {
    if (picture == arrow_)
        return;
    arrow_ = picture;
    update();
}

ucDropDown::Layout ucDropDown::layoutRects() const {
    const int strip = TheStyle().fieldHeight;
    const QRect arrow(width() - ArrowWidth, 0, ArrowWidth, strip);
    QRect picture(0, 0, PictureSize, PictureSize);
    picture.moveCenter(arrow.center());
    const int textHeight = qRound(QFontMetricsF(SmoothedFont(font())).height());
    const QRect text(TextLeft, (strip - textHeight) / 2, arrow.left() - TextLeft, textHeight);
    return {QRect(0, 0, width(), strip), text, arrow, picture,
            QRect(0, strip, width(), picBox_->height())};
}

QAccessibleInterface* ucDropDown::MakeAccessible() {
    return new DropDownInterface(this);
}

QSize ucDropDown::sizeHint() const {
    return {PlainWidth, TheStyle().fieldHeight};
}

void ucDropDown::resizeEvent(QResizeEvent*) {
    picBox_->setGeometry(layoutRects().picBox);
}

void ucDropDown::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Layout at = layoutRects();
    PaintStrip(painter, at);
    PaintArrow(painter, at);
    painter.setPen(isEnabled() ? TheStyle().ink : TheStyle().disabledInk);
    const QString text = FittingText(myName_, font(), at.lblMyName.width());
    SmoothedPrint(painter, at.lblMyName.topLeft(), text, font());
    if (FocusShown())
        PaintFocusRing(painter, at.picSelItem, TheStyle().fieldRadius);
}

void ucDropDown::PaintStrip(QPainter& painter, const Layout& at) const {
    const Style& style = TheStyle();
    const QColor& ground = isEnabled() ? style.paper : style.canvas;
    const QColor& usable = IsOpen() ? style.frame : style.fieldEdge;
    PaintFace(painter, at.picSelItem,
              {{ground, ground}, isEnabled() ? usable : style.rule, style.ink}, style.fieldRadius);
}

/// The ground of the arrow shows only under the pointer.
void ucDropDown::PaintArrow(QPainter& painter, const Layout& at) const {
    const Style& style = TheStyle();
    const int picture = static_cast<int>(arrow_);
    if (arrow_ != Arrow::Normal) {
        const QRect ground = at.picArrow.adjusted(0, 1, -1, -1);
        PaintGround(painter, ground, style.button[picture].ground);
        PaintEdge(painter, ground, Qt::LeftEdge, style.rule);
    }
    const QColor ink = isEnabled() ? style.*ArrowInks[picture] : style.disabledPicture;
    const int sunk = arrow_ == Arrow::Down ? 1 : 0;
    Pictures::Paint(painter, at.imgArrow.translated(0, sunk), QStringLiteral("drop-arrow"), ink);
}

void ucDropDown::TrackArrow(bool leftHeld, QPoint place) {
    if (!leftHeld)
        ShowArrow(Arrow::Roll);
    else
        ShowArrow(layoutRects().picArrow.contains(place) ? Arrow::Down : Arrow::Normal);
}

void ucDropDown::mousePressEvent(QMouseEvent* event) {
    const QPoint place = PixelOf(event);
    const Layout at = layoutRects();
    if (!at.picSelItem.contains(place))
        return;
    SetOpen(!IsOpen());
    arrowPressed_ = at.picArrow.contains(place);
    if (arrowPressed_)
        TrackArrow(event->buttons().testFlag(Qt::LeftButton), place);
}

/// The items pass their moves on, so they arrive here too.
void ucDropDown::mouseMoveEvent(QMouseEvent* event) {
    const QPoint place = PixelOf(event);
    const bool held = event->buttons().testFlag(Qt::LeftButton);
    const bool onArrow = held ? arrowPressed_ : layoutRects().picArrow.contains(place);
    if (onArrow)
        TrackArrow(held, place);
    else
        ShowArrow(Arrow::Normal);
    RaiseMouseMove(event);
}

void ucDropDown::mouseReleaseEvent(QMouseEvent* event) {
    if (arrowPressed_)
        TrackArrow(event->buttons().testFlag(Qt::LeftButton), PixelOf(event));
    arrowPressed_ = false;
}

void ucDropDown::leaveEvent(QEvent*) {
    if (!arrowPressed_)
        ResetPic();
}

void ucDropDown::focusOutEvent(QFocusEvent* event) {
    DrawnControl::focusOutEvent(event);
    Reset();
}

void ucDropDown::keyPressEvent(QKeyEvent* event) {
    if (OpensOrCloses(*event))
        return;
    const int asked = Asked(*event);
    if (asked == 0)
        return DrawnControl::keyPressEvent(event);
    if (IsOpen()) {
        Light(asked);
        picBox_->Bring(asked);
    } else if (asked != index_) {
        Pick(asked);
    }
}

bool ucDropDown::OpensOrCloses(const QKeyEvent& key) {
    const bool arrow = key.key() == Qt::Key_Down || key.key() == Qt::Key_Up;
    const bool toggles = key.key() == Qt::Key_F4 || (arrow && key.modifiers() & Qt::AltModifier);
    if (IsOpen() && IsPressKey(&key) && picBox_->Lit() > 0)
        Pick(picBox_->Lit());
    else if (IsOpen() && (toggles || IsPressKey(&key) || key.key() == Qt::Key_Escape))
        SetOpen(false);
    else if (toggles || IsPressKey(&key))
        OpenByKey();
    else
        return false;
    return true;
}

void ucDropDown::OpenByKey() {
    SetOpen(true);
    Light(index_);
}

void ucDropDown::Light(int index) {
    picBox_->Hilite(index);
    if (index > 0)
        TellCurrent(const_cast<DropItem*>(&picBox_->Item(index)));
}

int ucDropDown::Asked(const QKeyEvent& key) {
    switch (key.key()) {
    case Qt::Key_Up:
        return qMin(qMax(Current() - 1, 1), picBox_->Count());
    case Qt::Key_Down:
        return qMin(Current() + 1, picBox_->Count());
    case Qt::Key_Home:
        return qMin(1, picBox_->Count());
    case Qt::Key_End:
        return picBox_->Count();
    default:
        return AskedByWord(typed_.Add(key));
    }
}

/// The same letter again goes on to the next item that begins with it.
int ucDropDown::AskedByWord(const QString& word) const {
    if (word.isEmpty())
        return 0;
    const bool oneLetter = word.count(word[0]) == word.size();
    if (const int whole = picBox_->Find(word, qMax(1, Current())); whole > 0 && word.size() > 1)
        return whole;
    return oneLetter ? picBox_->Find(word.left(1), Current() + 1) : 0;
}

/// While the list is open, a press on something that takes no focus closes it too.
bool ucDropDown::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        auto* pressed = qobject_cast<QWidget*>(watched);
        if (pressed && pressed != this && !isAncestorOf(pressed))
            Reset();
    }
    return DrawnControl::eventFilter(watched, event);
}
