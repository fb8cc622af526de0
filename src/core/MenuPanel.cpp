#include "core/MenuPanel.h"

#include "core/MenuLabel.h"
#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "toolkit/SpokenRole.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int Edge = 1;
constexpr int Padding = 4; // above the first and below the last item

} // namespace

MenuPanel::MenuPanel(MenuItems::Menu menu, QWidget* parent)
    : QWidget(parent) {
    SetSpokenRole(this, QAccessible::PopupMenu);
    setObjectName(QLatin1String(MenuItems::Titles()[menu].panel));
    setAccessibleName(QLatin1String(MenuItems::Titles()[menu].caption));
    setMouseTracking(true);
    for (int index = 0; index < int(MenuItems::All().size()); ++index)
        if (MenuItems::All()[index].menu == menu)
            AddItem(index);
    PlaceItems();
    hide();
}

void MenuPanel::PlaceItems() {
    int widest = 0;
    for (const MenuLabel* item : std::as_const(items_))
        widest = qMax(widest, item->width());
    int top = Edge + Padding;
    for (MenuLabel* item : std::as_const(items_)) {
        item->setGeometry(Edge, top, widest, item->height());
        top += item->height();
    }
    resize(widest + 2 * Edge, top + Padding + Edge);
}

void MenuPanel::AddItem(int index) {
    const MenuItems::Item& row = MenuItems::All()[index];
    auto* item = new MenuLabel(MenuLabel::Kind::Item, QStringLiteral("lblMenuItem%1").arg(index),
                               QLatin1String(row.caption), this);
    item->setEnabled(row.act != nullptr);
    item->setVisible(row.shown);
    connect(item, &MenuLabel::MouseMove, this, [this, item] { Hilite(item); });
    connect(item, &MenuLabel::Click, this, [this, index] { Q_EMIT Chosen(index); });
    if (row.shown)
        items_ << item;
}

void MenuPanel::Hilite(MenuLabel* item) {
    for (MenuLabel* other : std::as_const(items_))
        other->SetHilited(item && other == item);
}

MenuLabel* MenuPanel::Hilited() const {
    for (MenuLabel* item : items_)
        if (item->Hilited())
            return item;
    return nullptr;
}

MenuLabel* MenuPanel::Next(MenuLabel* from, int step) const {
    const qsizetype count = items_.size();
    const qsizetype start = from ? items_.indexOf(from) : step > 0 ? -1 : 0;
    for (qsizetype tried = 1; tried <= count; ++tried) {
        MenuLabel* item = items_[((start + tried * step) % count + count) % count];
        if (item->isEnabled())
            return item;
    }
    return nullptr;
}

void MenuPanel::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void MenuPanel::mouseMoveEvent(QMouseEvent* event) {
    Hilite(nullptr);
    event->accept();
}

void MenuPanel::paintEvent(QPaintEvent*) {
    const Style& style = TheStyle();
    QPainter painter(this);
    painter.fillRect(rect(), style.paper);
    PaintFrame(painter, rect(), style.frame);
}
