#include "toolkit/PressLater.h"

#include <QApplication>
#include <QWidget>

namespace {

bool IsReachable(const QWidget* control) {
    const QWidget* modal = QApplication::activeModalWidget();
    return !modal || modal == control->window();
}

} // namespace

void PressLater(QWidget* control, const std::function<void()>& press) {
    if (IsReachable(control))
        QMetaObject::invokeMethod(control, press, Qt::QueuedConnection);
}
