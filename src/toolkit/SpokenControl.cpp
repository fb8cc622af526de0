#include "toolkit/SpokenControl.h"

#include <QEvent>

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

/// To match a control with a style sheet costs more than to make it, and 6 KB are kept for each.
bool SpokenControl::event(QEvent* event) {
    return event->type() == QEvent::Polish || QWidget::event(event);
}
