#include "toolkit/SpokenControl.h"

namespace {

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    auto* control = qobject_cast<SpokenControl*>(object);
    return control ? control->MakeAccessible() : nullptr;
}

} // namespace

SpokenControl::SpokenControl(QWidget* parent)
    : QWidget(parent) {
    static const bool installed = (QAccessible::installFactory(MakeInterface), true);
    Q_UNUSED(installed)
}
