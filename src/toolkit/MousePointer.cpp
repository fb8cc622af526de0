#include "toolkit/MousePointer.h"

#include <QCursor>
#include <QGuiApplication>

void MousePointer::SetBusy() {
    if (!IsBusy())
        QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
}

void MousePointer::SetNormal() {
    if (IsBusy())
        QGuiApplication::restoreOverrideCursor();
}

bool MousePointer::IsBusy() {
    const QCursor* shown = QGuiApplication::overrideCursor();
    return shown && shown->shape() == Qt::WaitCursor;
}
