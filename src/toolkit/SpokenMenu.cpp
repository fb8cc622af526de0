#include "toolkit/SpokenMenu.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QMenu>

namespace {

QMenu* MenuOf(const QAction* action) {
    for (QObject* owner : action->associatedObjects())
        if (auto* menu = qobject_cast<QMenu*>(owner))
            return menu;
    return nullptr;
}

/// A single & stands before the letter that chooses the item.
QString WithoutLetter(QString caption) {
    for (qsizetype at = caption.indexOf(u'&'); at >= 0; at = caption.indexOf(u'&', at + 1))
        caption.remove(at, 1);
    return caption;
}

void CloseMenus() {
    while (QWidget* popup = QApplication::activePopupWidget())
        if (!popup->close())
            return;
}

class Item : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    explicit Item(QAction* action)
        : action_(action) {}

    bool isValid() const override { return Menu(); }
    QObject* object() const override { return action_; }
    QWindow* window() const override { return parent()->window(); }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(Menu());
    }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(Submenu()) : nullptr;
    }
    int childCount() const override { return Submenu() ? 1 : 0; }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child && Submenu() && child->object() == Submenu() ? 0 : -1;
    }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override {
        return action_->isSeparator() ? QAccessible::Separator : QAccessible::MenuItem;
    }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override {
        return {text(QAccessible::Accelerator)};
    }

private:
    QMenu* Menu() const { return MenuOf(action_); }
    QMenu* Submenu() const { return action_->menu<QMenu*>(); }
    bool IsOffered() const { return Menu()->isVisible() && action_->isEnabled(); }
    void Act();
    void ShowSubmenu();

    QAction* action_;
};

QString Item::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Name)
        return WithoutLetter(action_->text());
    return kind == QAccessible::Accelerator ? action_->shortcut().toString(QKeySequence::NativeText)
                                            : QString();
}

QRect Item::rect() const {
    const QRect place = Menu()->actionGeometry(action_);
    return {Menu()->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::State Item::state() const {
    QAccessible::State state;
    state.invisible = !Menu()->isVisible() || !action_->isVisible();
    state.disabled = action_->isSeparator() || !action_->isEnabled();
    state.focused = Menu()->activeAction() == action_;
    state.hasPopup = Submenu() != nullptr;
    state.checkable = action_->isCheckable();
    state.checked = action_->isChecked();
    return state;
}

QStringList Item::actionNames() const {
    if (action_->isSeparator())
        return {};
    return {Submenu() ? showMenuAction() : pressAction()};
}

void Item::doAction(const QString& name) {
    if (!actionNames().contains(name))
        return;
    QMetaObject::invokeMethod(
        action_, [this] { Act(); }, Qt::QueuedConnection);
}

/// The action may destroy this item.
void Item::Act() {
    if (!IsOffered())
        return;
    if (Submenu())
        return ShowSubmenu();
    CloseMenus();
    action_->trigger();
}

void Item::ShowSubmenu() {
    if (Submenu()->isVisible())
        Submenu()->hide();
    else
        Menu()->setActiveAction(action_);
}

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    auto* action = qobject_cast<QAction*>(object);
    return action && MenuOf(action) ? new Item(action) : nullptr;
}

} // namespace

void SpokenMenu::Install() {
    static const bool installed = (QAccessible::installFactory(MakeInterface), true);
    Q_UNUSED(installed)
}
