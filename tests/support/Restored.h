#pragma once

#include <QApplication>
#include <QShowEvent>
#include <QWidget>
#include <QtTest/qtestspontaneevent.h>

/// Tells a control that its window is no longer minimised, as the platform does.
inline void SendRestored(QWidget* control) {
    QShowEvent shown;
    QSpontaneKeyEvent::setSpontaneous(&shown);
    qApp->notify(control, &shown);
}
