#include "Typing.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

void TypeLetter(QWidget& field) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent key(type, Qt::Key_A, {}, QStringLiteral("a"));
        QApplication::sendEvent(&field, &key);
    }
    QApplication::processEvents();
}
