#include "toolkit/CentreWindow.h"

#include <QScreen>
#include <QWidget>

void CentreWindow(QWidget* window) {
    const QWidget* owner = window->parentWidget() ? window->parentWidget()->window() : nullptr;
    const QRect around = owner ? owner->geometry() : window->screen()->availableGeometry();
    QRect place = window->rect();
    place.moveCenter(around.center());
    window->move(place.topLeft());
}
