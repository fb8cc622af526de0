#include "toolkit/ucAte.h"

#include "drawing/DevicePixels.h"
#include "drawing/Pictures.h"
#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "runtime/Convert.h"
#include "toolkit/PlainTip.h"
#include "toolkit/ucButtonA.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QtMath>

namespace {

constexpr int TextLeft = 14;
constexpr int TextRight = 8;
constexpr int IconSide = 20;
constexpr int TrashSide = 24;
constexpr QSize TrashPicture(16, 16);
constexpr int TrashRight = 4;
constexpr double QuantityGap = 120; // twips
constexpr int LongestShown = 1000;  // characters: more never fit a line

/// Line breaks and other blanks of a name become single spaces.
QString OneLine(const QString& text) {
    return text.left(LongestShown).remove(QChar::Null).simplified();
}

int WidthOf(const QString& text, const QFont& font) {
    return qCeil(QFontMetricsF(SmoothedFont(font)).horizontalAdvance(text));
}

void Print(QPainter& painter, const QRect& place, const QString& text, const QFont& font) {
    SmoothedPrint(painter, place.topLeft(), FittingText(OneLine(text), font, place.width()), font);
}

} // namespace

ucAte::ucAte(QWidget* parent)
    : ListRow(parent)
    , imgTrash_(new ucButtonA(this)) {
    setFont(TheStyle().text);
    SetBackColor(TheStyle().paper);
    SetBorderStyle(1);
    imgTrash_->setObjectName(QStringLiteral("imgTrash"));
    imgTrash_->SetPictures(QStringLiteral("trash"), QStringLiteral("Remove"));
    imgTrash_->SetPictureSize(TrashPicture);
    connect(imgTrash_, &ucButtonA::Click, this, &ucAte::Remove);
    connect(imgTrash_, &ucButtonA::MouseMove, this, &ucAte::MouseMove);
    resize(sizeHint());
}

void ucAte::SetFoodName(const QString& name) {
    if (name == foodName_)
        return;
    setToolTip(name);
    imgTrash_->setAccessibleName("Remove " + name);
    Take(foodName_, name);
}

void ucAte::SetServ(const QString& serving) {
    Take(serv_, serving);
}

void ucAte::SetQTY(const QString& quantity) {
    Take(qty_, quantity);
}

void ucAte::SetID(const QString& id) {
    id_ = id;
}

void ucAte::KeepClear(int room) {
    clear_ = room;
    update();
}

QString ucAte::Caption() const {
    QStringList parts{foodName_, serv_, qty_};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

QSize ucAte::sizeHint() const {
    return {TextLeft + TextRight + TrashSide + TrashRight, TheStyle().tallRowHeight};
}

QRect ucAte::TrashPlace() const {
    return {width() - TrashRight - TrashSide, (height() - TrashSide) / 2, TrashSide, TrashSide};
}

QRect ucAte::TextPlace() const {
    const int left = TextLeft + (FoodIcon().isEmpty() ? 0 : IconSide + TheStyle().groupGap);
    const int right = width() - TrashRight - TrashSide - TextRight - clear_;
    return {left, 0, qMax(0, right - left), height()};
}

/// The quantity follows the serving; a serving that leaves no room for it is cut.
ucAte::Layout ucAte::layoutRects() const {
    const QFontMetrics name(SmoothedFont(font()));
    const QFontMetrics small(SmoothedFont(TheStyle().small));
    const QRect texts = TextPlace();
    const int top = (height() - name.height() - small.height()) / 2;
    const int gap = Twips::ToPixels(QuantityGap);
    const int qtyWidth = qMin(WidthOf(qty_, TheStyle().small), texts.width());
    const int servWidth =
        qMin(WidthOf(OneLine(serv_), TheStyle().small), qMax(0, texts.width() - gap - qtyWidth));
    const int second = top + name.height();
    return {QRect(TextLeft, (height() - IconSide) / 2, IconSide, IconSide),
            QRect(texts.left(), top, texts.width(), name.height()),
            QRect(texts.left(), second, servWidth, small.height()),
            QRect(texts.left() + servWidth + gap, second, qtyWidth, small.height()), TrashPlace()};
}

void ucAte::resizeEvent(QResizeEvent*) {
    imgTrash_->setGeometry(TrashPlace());
}

void ucAte::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PaintGround(painter);
    PaintTexts(painter);
}

void ucAte::PaintGround(QPainter& painter) const {
    if (BackStyle() != 0)
        painter.fillRect(rect(), BackColor());
    if (BorderStyle() != 0)
        PaintEdge(painter, rect(), Qt::BottomEdge, TheStyle().rule);
    if (!FoodIcon().isEmpty())
        Pictures::Paint(painter, layoutRects().imgFoodIcon, FoodIcon(), TheStyle().quietInk);
}

void ucAte::PaintTexts(QPainter& painter) const {
    const Style& style = TheStyle();
    const Layout at = layoutRects();
    painter.setPen(isEnabled() ? ForeColor() : style.disabledInk);
    Print(painter, at.lblFood, foodName_, font());
    painter.setPen(isEnabled() ? style.quietInk : style.disabledInk);
    Print(painter, at.lblServ, serv_, style.small);
    Print(painter, at.lblQTY, qty_, style.small);
}

bool ucAte::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return ListRow::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const bool onName = layoutRects().lblFood.contains(help->pos());
    ShowPlainTip(help->globalPos(), onName ? foodName_ : QString(), this);
    return true;
}

/// Stops the press here: the pane's Click is for its empty part only.
void ucAte::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void ucAte::mouseMoveEvent(QMouseEvent* event) {
    RaiseMouseMove(event);
}

void ucAte::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete && !event->isAutoRepeat())
        Remove();
    else
        ListRow::keyPressEvent(event);
}

/// The context menu offers all that can be done with the food.
void ucAte::Activate() {
    imgTrash_->setFocus(Qt::OtherFocusReason);
    QContextMenuEvent asked(QContextMenuEvent::Other, rect().center(),
                            mapToGlobal(rect().center()));
    QApplication::sendEvent(this, &asked);
}

void ucAte::Remove() {
    Q_EMIT RemoveFood(ToInteger(id_));
}
