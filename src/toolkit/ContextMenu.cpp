#include "toolkit/ContextMenu.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

namespace {

bool IsMenuKey(const QKeyEvent* event) {
    const bool shiftF10 = event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier;
    return (event->key() == Qt::Key_Menu || shiftF10) && !event->isAutoRepeat();
}

} // namespace

ContextMenu::ContextMenu(QWidget* owner, Fill fill)
    : QObject(owner)
    , owner_(owner)
    , fill_(std::move(fill)) {
    owner->installEventFilter(this);
}

/// What a child does not take comes up to its owner. The platform may send both the menu key and
/// the event that it stands for: the open menu takes the key.
bool ContextMenu::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::KeyPress)
        return IsMenuKey(static_cast<QKeyEvent*>(event)) && OpenByKey();
    if (event->type() != QEvent::ContextMenu)
        return false;
    const auto* asked = static_cast<const QContextMenuEvent*>(event);
    if (asked->reason() == QContextMenuEvent::Keyboard)
        return OpenByKey();
    QWidget* target = owner_->childAt(owner_->mapFromGlobal(asked->globalPos()));
    return Open(target ? target : owner_, asked->globalPos());
}

bool ContextMenu::OpenByKey() {
    QWidget* focus = QApplication::focusWidget();
    if (!focus || !owner_->isAncestorOf(focus))
        focus = owner_;
    const QPoint below = focus->mapToGlobal(QPoint(0, focus == owner_ ? 0 : focus->height()));
    if (!qobject_cast<QLineEdit*>(focus))
        return Open(focus, below);
    QContextMenuEvent own(QContextMenuEvent::Keyboard, focus->rect().bottomLeft(), below);
    return QApplication::sendEvent(focus, &own);
}

/// An item may open a window with an event loop of its own, and that deletes what waits for it
/// although the menu still runs the item. So a menu stays until the next one opens.
bool ContextMenu::Open(QWidget* target, QPoint globalPlace) {
    if (menu_)
        menu_->deleteLater();
    auto* menu = new QMenu(owner_);
    menu_ = menu;
    menu->setObjectName(QStringLiteral("contextMenu"));
    fill_(*menu, target);
    if (menu->isEmpty())
        delete menu;
    else
        menu->popup(globalPlace);
    return true;
}
