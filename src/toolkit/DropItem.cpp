#include "toolkit/DropItem.h"

#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "toolkit/ControlInterface.h"
#include "toolkit/DropPanel.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int TextLeft = 7; // pixels

/// It belongs to the list, whatever surfaces lie between.
class ItemInterface : public ControlInterface {
public:
    using ControlInterface::ControlInterface;

    QAccessibleInterface* parent() const override {
        QWidget* above = widget()->parentWidget();
        while (above && !qobject_cast<DropPanel*>(above))
            above = above->parentWidget();
        return QAccessible::queryAccessibleInterface(above);
    }
    QAccessible::State state() const override {
        const auto* item = static_cast<DropItem*>(object());
        QAccessible::State state = ControlInterface::state();
        state.selectable = true;
        state.selected = item->Chosen();
        state.active = item->IsLit();
        return state;
    }
};

} // namespace

DropItem::DropItem(const QString& caption, const QString& tag, QWidget* parent)
    : ListRow(parent)
    , caption_(caption)
    , tag_(tag) {
    setFont(TheStyle().text);
    SetLit(false);
}

void DropItem::SetLit(bool lit) {
    const Style& style = TheStyle();
    SetBackColor(lit ? style.listItemLit : style.listItem);
    SetForeColor(lit ? style.listItemLitText : style.listItemText);
}

QAccessibleInterface* DropItem::MakeAccessible() {
    return new ItemInterface(this);
}

bool DropItem::IsLit() const {
    return BackColor() != TheStyle().listItem;
}

void DropItem::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), BackColor());
    painter.setPen(ForeColor());
    const double textHeight = QFontMetricsF(SmoothedFont(font())).height();
    SmoothedPrint(painter, QPointF(TextLeft, height() / 2.0 - textHeight / 2), caption_, font());
}

void DropItem::mousePressEvent(QMouseEvent* event) {
    BeginClick(event);
}

/// Passes the move on to the list below.
void DropItem::mouseMoveEvent(QMouseEvent* event) {
    RaiseMouseMove(event);
    event->ignore();
}

void DropItem::mouseReleaseEvent(QMouseEvent* event) {
    if (EndsClick(event))
        Q_EMIT Click();
}
