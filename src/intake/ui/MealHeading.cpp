#include "intake/ui/MealHeading.h"

#include "drawing/DevicePixels.h"
#include "drawing/Pictures.h"
#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int CaptionLeft = 11;
constexpr int SignRight = 8;
constexpr int SignSide = 16;

QFont HeadingFont() {
    QFont font = TheStyle().strong;
    font.setBold(true);
    return font;
}

} // namespace

MealHeading::MealHeading(const QString& name, const QString& caption, QWidget* parent)
    : DrawnControl(parent)
    , caption_(caption) {
    setObjectName(name);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setToolTip("Add food to " + caption.toLower());
    setAccessibleName(caption);
    setAccessibleDescription(toolTip());
    resize(sizeHint());
}

QColor MealHeading::ForeColor() const {
    return lit_ ? TheStyle().chosenRowText : TheStyle().mealText;
}

void MealHeading::SetLit(bool lit) {
    if (lit == lit_)
        return;
    lit_ = lit;
    update();
}

QSize MealHeading::sizeHint() const {
    return {0, TheStyle().rowHeight};
}

void MealHeading::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Style& style = TheStyle();
    painter.fillRect(rect(), lit_ ? style.mealStripLit : style.mealStrip);
    for (const Qt::Edge edge : {Qt::TopEdge, Qt::BottomEdge})
        PaintEdge(painter, rect(), edge, style.rule);
    painter.setPen(ForeColor());
    const double textHeight = QFontMetricsF(SmoothedFont(HeadingFont())).height();
    SmoothedPrint(painter, QPointF(CaptionLeft, (height() - textHeight) / 2), caption_,
                  HeadingFont());
    Pictures::Paint(
        painter,
        QRect(width() - SignRight - SignSide, (height() - SignSide) / 2, SignSide, SignSide),
        QStringLiteral("add"), ForeColor());
    if (FocusShown())
        PaintFocusRing(painter, rect().adjusted(2, 1, -1, -1), style.fieldRadius);
}

void MealHeading::mousePressEvent(QMouseEvent* event) {
    BeginClick(event);
}

void MealHeading::mouseMoveEvent(QMouseEvent* event) {
    RaiseMouseMove(event);
}

void MealHeading::mouseReleaseEvent(QMouseEvent* event) {
    if (EndsClick(event))
        Q_EMIT Click();
}

void MealHeading::keyPressEvent(QKeyEvent* event) {
    if (IsPressKey(event))
        Activate();
    else
        DrawnControl::keyPressEvent(event);
}
