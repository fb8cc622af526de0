#include "toolkit/Dialog.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "toolkit/CentreWindow.h"
#include "toolkit/CleanUp.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucButtonA.h"
#include "toolkit/ucTitleFlat.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int Edge = 1;

template <class Button> void ResetAllBut(const QString& except, QWidget* form) {
    const auto buttons = form->findChildren<Button*>();
    for (Button* button : buttons)
        if (except.isEmpty() || button->objectName().compare(except, Qt::CaseInsensitive) != 0)
            button->Reset();
}

} // namespace

Dialog::Dialog(const QString& name, const QString& title, QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::FramelessWindowHint)
    , title_(new ucTitleFlat(this)) {
    setObjectName(name);
    setWindowTitle(title);
    setMouseTracking(true);
    title_->setObjectName(QStringLiteral("ucTitle"));
    title_->SetCaption(title);
    AddCleanUp(this, [this] { AllOff(QString()); });
}

void Dialog::AllOff(const QString& except) {
    ResetAllBut<ucButton>(except, this);
    ResetAllBut<ucButtonA>(except, this);
}

int Dialog::ShowModal() {
    setModal(true);
    return exec();
}

QRect Dialog::Inner() const {
    return rect().adjusted(Edge, title_->height(), -Edge, -Edge);
}

/// A dialog that was minimised keeps its place.
void Dialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous())
        CentreWindow(this);
}

void Dialog::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), TheStyle().canvas);
    PaintFrame(painter, rect(), TheStyle().frame);
}

void Dialog::mouseMoveEvent(QMouseEvent*) {
    AllOff(QString());
}
