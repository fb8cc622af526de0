#include "toolkit/ControlInterface.h"

#include "toolkit/PressLater.h"

#include <algorithm>
#include <iterator>

ControlInterface::ControlInterface(SpokenControl* control)
    : QAccessibleWidget(control, control->AccessibleRole()) {}

QString ControlInterface::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Name)
        return Name();
    const QString own = QAccessibleWidget::text(kind);
    return kind == QAccessible::Description && own == Name() ? QString() : own;
}

QString ControlInterface::Name() const {
    const QString own = QAccessibleWidget::text(QAccessible::Name);
    if (!own.isEmpty())
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
    if (name != pressAction() || !Presses())
        return QAccessibleWidget::doAction(name);
    auto* control = static_cast<SpokenControl*>(object());
    PressLater(control, [control] {
        if (control->isEnabled())
            control->Activate();
    });
}

bool ControlInterface::Presses() const {
    static constexpr QAccessible::Role pressed[] = {
        QAccessible::Button,   QAccessible::RadioButton, QAccessible::ComboBox,
        QAccessible::ListItem, QAccessible::ButtonMenu,  QAccessible::MenuItem};
    return std::find(std::begin(pressed), std::end(pressed), role()) != std::end(pressed);
}
