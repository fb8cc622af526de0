#include "toolkit/ControlInterface.h"

#include <algorithm>
#include <iterator>

ControlInterface::ControlInterface(SpokenControl* control)
    : QAccessibleWidget(control, control->AccessibleRole()) {}

QString ControlInterface::text(QAccessible::Text kind) const {
    QString own = QAccessibleWidget::text(kind);
    if (kind != QAccessible::Name || !own.isEmpty())
        return own;
    const QString caption = object()->property("Caption").toString().trimmed();
    return caption.isEmpty() ? widget()->toolTip() : caption;
}

QStringList ControlInterface::actionNames() const {
    QStringList names = QAccessibleWidget::actionNames();
    if (Presses())
        names.prepend(pressAction());
    return names;
}

void ControlInterface::doAction(const QString& name) {
    if (name == pressAction() && widget()->isEnabled() && Presses())
        static_cast<SpokenControl*>(object())->Activate();
    else
        QAccessibleWidget::doAction(name);
}

bool ControlInterface::Presses() const {
    static constexpr QAccessible::Role pressed[] = {
        QAccessible::Button,   QAccessible::RadioButton, QAccessible::ComboBox,
        QAccessible::ListItem, QAccessible::ButtonMenu,  QAccessible::MenuItem};
    return std::find(std::begin(pressed), std::end(pressed), role()) != std::end(pressed);
}
