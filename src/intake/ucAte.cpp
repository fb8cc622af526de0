#include "intake/ucAte.h"

#include "runtime/Convert.h"
#include "toolkit/Pictures.h"
#include "toolkit/SmoothedPrint.h"
#include "toolkit/Style.h"
#include "toolkit/Twips.h"
#include "toolkit/ucButtonA.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>
#include <QtMath>

namespace {

constexpr int textLeft = 14;
constexpr int textRight = 8;
constexpr int iconSide = 20;
constexpr int trashSide = 24;
constexpr QSize trashPicture(16, 16);
constexpr int trashRight = 4;
constexpr double quantityGap = 120; // twips
constexpr int longestShown = 1000;  // characters: more never fit a line
constexpr int longestTip = 500;

template <class Value> bool Assign(Value& field, const Value& value) {
    if (field == value)
        return false;
    field = value;
    return true;
}

/// Line breaks and other blanks of a name become single spaces.
QString OneLine(const QString& text) {
    return text.left(longestShown).remove(QChar::Null).simplified();
}

int WidthOf(const QString& text, const QFont& font) {
    return qCeil(QFontMetricsF(SmoothedFont(font)).horizontalAdvance(text));
}

void Print(QPainter& painter, const QRect& place, const QString& text, const QFont& font) {
    SmoothedPrint(painter, place.topLeft(), FittingText(OneLine(text), font, place.width()), font);
}

} // namespace

ucAte::ucAte(QWidget* parent)
    : DrawnControl(parent)
    , backColor_(TheStyle().paper)
    , foreColor_(TheStyle().ink)
    , imgTrash_(new ucButtonA(this)) {
    setFont(TheStyle().text);
    imgTrash_->setObjectName(QStringLiteral("imgTrash"));
    imgTrash_->SetPictures(QStringLiteral("trash"), QStringLiteral("Remove"));
    imgTrash_->SetPictureSize(trashPicture);
    connect(imgTrash_, &ucButtonA::Click, this, &ucAte::Remove);
    connect(imgTrash_, &ucButtonA::MouseMove, this, &ucAte::MouseMove);
    resize(sizeHint());
}

void ucAte::SetFoodName(const QString& name) {
    if (!Assign(foodName_, name))
        return;
    setToolTip(name);
    imgTrash_->setAccessibleName("Remove " + name);
    update();
}

void ucAte::SetServ(const QString& serving) {
    if (Assign(serv_, serving))
        update();
}

void ucAte::SetQTY(const QString& quantity) {
    if (Assign(qty_, quantity))
        update();
}

void ucAte::SetID(const QString& id) {
    id_ = id;
}

void ucAte::SetFoodIcon(const QString& picture) {
    if (Assign(foodIcon_, picture))
        update();
}

void ucAte::SetBackColor(const QColor& color) {
    if (Assign(backColor_, color))
        update();
}

void ucAte::SetForeColor(const QColor& color) {
    if (Assign(foreColor_, color))
        update();
}

void ucAte::SetBackStyle(int style) {
    if (Assign(backStyle_, style))
        update();
}

void ucAte::SetBorderStyle(int style) {
    if (Assign(borderStyle_, style))
        update();
}

QString ucAte::Caption() const {
    const QStringList parts{foodName_, serv_, qty_};
    return QStringList(parts).join(QStringLiteral(", "));
}

QSize ucAte::sizeHint() const {
    return {textLeft + textRight + trashSide + trashRight, TheStyle().tallRowHeight};
}

QRect ucAte::TrashPlace() const {
    return {width() - trashRight - trashSide, (height() - trashSide) / 2, trashSide, trashSide};
}

QRect ucAte::TextPlace() const {
    const int left = textLeft + (foodIcon_.isEmpty() ? 0 : iconSide + TheStyle().groupGap);
    const int right = width() - trashRight - trashSide - textRight;
    return {left, 0, qMax(0, right - left), height()};
}

/// The quantity stands right behind the serving; a serving too long for both is cut.
ucAte::Layout ucAte::layoutRects() const {
    const QFontMetrics name(SmoothedFont(font()));
    const QFontMetrics small(SmoothedFont(TheStyle().small));
    const QRect texts = TextPlace();
    const int top = (height() - name.height() - small.height()) / 2;
    const int gap = Twips::ToPixels(quantityGap);
    const int qtyWidth = qMin(WidthOf(qty_, TheStyle().small), texts.width());
    const int servWidth =
        qMin(WidthOf(OneLine(serv_), TheStyle().small), qMax(0, texts.width() - gap - qtyWidth));
    const int second = top + name.height();
    return {QRect(textLeft, (height() - iconSide) / 2, iconSide, iconSide),
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
    if (backStyle_ != 0)
        painter.fillRect(rect(), backColor_);
    if (borderStyle_ != 0)
        painter.fillRect(QRect(0, height() - 1, width(), 1), TheStyle().rule);
    if (!foodIcon_.isEmpty())
        Pictures::Paint(painter, layoutRects().imgFoodIcon, foodIcon_, TheStyle().quietInk);
}

void ucAte::PaintTexts(QPainter& painter) const {
    const Style& style = TheStyle();
    const Layout at = layoutRects();
    painter.setPen(isEnabled() ? foreColor_ : style.disabledInk);
    Print(painter, at.lblFood, foodName_, font());
    painter.setPen(isEnabled() ? style.quietInk : style.disabledInk);
    Print(painter, at.lblServ, serv_, style.small);
    Print(painter, at.lblQTY, qty_, style.small);
}

bool ucAte::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return DrawnControl::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    ShowTip(help->pos(), help->globalPos());
    return true;
}

/// A name can be as long as it likes and hold anything: its tip wraps, ends somewhere, and is never
/// read as markup.
void ucAte::ShowTip(QPoint place, QPoint globalPlace) {
    if (foodName_.isEmpty() || !layoutRects().lblFood.contains(place))
        return QToolTip::hideText();
    QToolTip::showText(globalPlace,
                       Qt::convertFromPlainText(foodName_.left(longestTip), Qt::WhiteSpaceNormal),
                       this);
}

/// A line is not the empty pane: a press on it ends here.
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
        DrawnControl::keyPressEvent(event);
}

void ucAte::Remove() {
    Q_EMIT RemoveFood(ToInteger(id_));
}
