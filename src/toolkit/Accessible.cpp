#include "toolkit/Accessible.h"

#include <QAccessible>
#include <QWidget>

void TellNameChanged(QWidget* control) {
    QAccessibleEvent event(control, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

void TellDescriptionChanged(QWidget* control) {
    QAccessibleEvent event(control, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

void TellValueChanged(QWidget* control, int value) {
    QAccessibleValueChangeEvent event(control, value);
    QAccessible::updateAccessibility(&event);
}

void TellTextChanged(QWidget* control, const QString& text) {
    QAccessibleValueChangeEvent event(control, text);
    QAccessible::updateAccessibility(&event);
}

void TellChecked(QWidget* control) {
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(control, changed);
    QAccessible::updateAccessibility(&event);
}

void TellExpanded(QWidget* control) {
    QAccessible::State changed;
    changed.expanded = true;
    QAccessibleStateChangeEvent event(control, changed);
    QAccessible::updateAccessibility(&event);
}

void TellCurrent(QWidget* part) {
    QAccessibleEvent event(part, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void TellAloud(QWidget* control) {
    QAccessibleEvent event(control, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}
