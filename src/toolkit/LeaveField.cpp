#include "toolkit/LeaveField.h"

#include <QApplication>
#include <QWidget>

void LeaveField(const QWidget* window) {
    QWidget* field = QApplication::focusWidget();
    if (field && window && window->isAncestorOf(field))
        field->clearFocus();
}
