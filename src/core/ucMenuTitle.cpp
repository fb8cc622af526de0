#include "core/ucMenuTitle.h"

#include "toolkit/Style.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int sidePadding = 10;
constexpr int verticalGap = 2;

} // namespace

ucMenuTitle::ucMenuTitle(const QString& name, const QString& caption, QWidget* parent)
    : QAbstractButton(parent) {
    setObjectName(name);
    setText(caption);
    setAccessibleName(caption);
    setFont(TheStyle().text);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    resize(sizeHint());
}

QSize ucMenuTitle::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + 2 * sidePadding, TheStyle().headerHeight};
}

void ucMenuTitle::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void ucMenuTitle::paintEvent(QPaintEvent*) {
    const Style& style = TheStyle();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF body = QRectF(rect()).adjusted(0.5, verticalGap + 0.5, -0.5, -verticalGap - 0.5);
    if (underMouse() || isDown() || hasFocus()) {
        const Style::ButtonFace& face = style.button[isDown() ? 2 : 1];
        painter.setPen(hasFocus() ? style.frame : face.edge);
        painter.setBrush(face.ground.from);
        painter.drawRoundedRect(body, style.buttonRadius, style.buttonRadius);
    }
    painter.setPen(style.ink);
    painter.drawText(rect(), Qt::AlignCenter, text());
}
