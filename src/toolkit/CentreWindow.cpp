#include "toolkit/CentreWindow.h"

#include <QScreen>
#include <QWidget>

QPoint WholeOnScreen(const QRect& place, const QRect& screen) {
    const QPoint last = screen.bottomRight() - QPoint(place.width() - 1, place.height() - 1);
    return {qMax(qMin(place.left(), last.x()), screen.left()),
            qMax(qMin(place.top(), last.y()), screen.top())};
}

void CentreWindow(QWidget* window) {
    const QWidget* owner = window->parentWidget() ? window->parentWidget()->window() : nullptr;
    const QRect screen = (owner ? owner : window)->screen()->availableGeometry();
    QRect place = window->rect();
    place.moveCenter(owner ? owner->geometry().center() : screen.center());
    window->move(WholeOnScreen(place, screen));
}
