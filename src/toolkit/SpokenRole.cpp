#include "toolkit/SpokenRole.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace {

constexpr auto RoleProperty = "spokenRole";

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = widget ? widget->property(RoleProperty) : QVariant();
    return role.isValid() ? new QAccessibleWidget(widget, QAccessible::Role(role.toInt()))
                          : nullptr;
}

} // namespace

void SetSpokenRole(QWidget* widget, QAccessible::Role role) {
    static const bool installed = (QAccessible::installFactory(MakeInterface), true);
    Q_UNUSED(installed)
    widget->setProperty(RoleProperty, int(role));
}
