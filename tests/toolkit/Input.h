#pragma once

#include <QEvent>
#include <QList>
#include <QObject>
#include <QPointF>

#include <functional>

class QWidget;

/// Single mouse events as the platform sends them, for the steps between press and click.
void SendMove(QWidget* control, QPointF at, Qt::MouseButtons held = Qt::NoButton);
void SendPress(QWidget* control, QPointF at, Qt::MouseButton button = Qt::LeftButton);
void SendRelease(QWidget* control, QPointF at, Qt::MouseButton button = Qt::LeftButton);
void SendLeave(QWidget* control);
void SendWheel(QWidget* control, int angle);

/// Counts the events of one kind that reach an object.
class EventCount : public QObject {
public:
    EventCount(QObject* watched, QEvent::Type type);
    int Count() const { return count_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QEvent::Type type_;
    int count_ = 0;
};
