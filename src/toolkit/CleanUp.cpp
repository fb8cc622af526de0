#include "toolkit/CleanUp.h"

#include <QCursor>
#include <QTimer>
#include <QWidget>

namespace {

constexpr int Interval = 250; // milliseconds

/// The edge counts as inside, hence left plus width and top plus height.
bool StandsOver(const QWidget* form, QPoint cursor) {
    const QPoint place = form->mapFromGlobal(cursor);
    return place.x() >= 0 && place.y() >= 0 && place.x() <= form->width() &&
           place.y() <= form->height();
}

QTimer* TimerOf(QWidget* form) {
    const QString name = QStringLiteral("cleanUp");
    if (auto* there = form->findChild<QTimer*>(name, Qt::FindDirectChildrenOnly))
        return there;
    auto* timer = new QTimer(form);
    timer->setObjectName(name);
    timer->setInterval(Interval);
    return timer;
}

} // namespace

QTimer* AddCleanUp(QWidget* form, std::function<void()> off) {
    QTimer* timer = TimerOf(form);
    timer->disconnect(form);
    QObject::connect(timer, &QTimer::timeout, form, [form, off = std::move(off)] {
        if (form->isVisible() && !StandsOver(form, QCursor::pos()))
            off();
    });
    timer->start();
    return timer;
}
