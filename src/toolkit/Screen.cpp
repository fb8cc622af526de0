#include "toolkit/Screen.h"

#include "toolkit/CleanUp.h"
#include "toolkit/Style.h"
#include "toolkit/ucButton.h"

#include <QMouseEvent>
#include <QPainter>

Screen::Screen(const QString& name, const QString& title, QWidget* parent)
    : QWidget(parent)
    , title_(title) {
    setObjectName(name);
    setWindowTitle(title);
    setAccessibleName(title);
    setMouseTracking(true);
    AddCleanUp(this, [this] { AllOff(QString()); });
}

ucButton* Screen::AddButton(const char* name, const char* caption, std::function<void()> pressed) {
    auto* button = new ucButton(QString::fromLatin1(caption), this);
    button->setObjectName(QString::fromLatin1(name));
    connect(button, &ucButton::Click, this, std::move(pressed));
    connect(button, &ucButton::MouseMove, this, [this, button] { AllOff(button->objectName()); });
    buttons_ << button;
    return button;
}

void Screen::AllOff(const QString& except) {
    for (ucButton* button : std::as_const(buttons_))
        if (button->objectName().compare(except, Qt::CaseInsensitive) != 0)
            button->Reset();
}

void Screen::mouseMoveEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    if (place == lastMouse_)
        return;
    lastMouse_ = place;
    AllOff(QString());
}

void Screen::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), TheStyle().canvas);
}
