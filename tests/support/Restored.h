#pragma once

#include <QApplication>
#include <QShowEvent>
#include <QWidget>
#include <QtTest/qtestspontaneevent.h>

/// What the platform tells a control when its window is back from being minimised.
inline void SendRestored(QWidget* control) {
    QShowEvent shown;
    QSpontaneKeyEvent::setSpontaneous(&shown);
    qApp->notify(control, &shown);
}
