#include "core/FocusInSight.h"

#include "drawing/Style.h"
#include "toolkit/CentreWindow.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>

namespace {

/// A person may have put a frame that fits where a part of it is out of sight.
bool IsLargerThanScreen(const QWidget& frame) {
    const QSize screen = frame.screen()->availableSize();
    return frame.width() > screen.width() || frame.height() > screen.height();
}

bool IsStopIn(const QWidget& frame, const QWidget* control) {
    return control && control->window() == &frame && control->focusPolicy() & Qt::TabFocus;
}

/// What is seen of the control, with the ground around it: a control at the edge of the screen
/// looks cut.
QRect PlaceOf(const QWidget& control, const QWidget& frame) {
    const int edge = TheStyle().nestEdge;
    const QRect seen = control.visibleRegion().boundingRect();
    const QRect place(control.mapToGlobal(seen.topLeft()), seen.size());
    return place.adjusted(-edge, -edge, edge, edge) & frame.geometry();
}

void Show(QWidget& frame, const QWidget& control) {
    const QRect place = PlaceOf(control, frame);
    const QPoint wanted = WholeOnScreen(place, frame.screen()->availableGeometry());
    if (wanted != place.topLeft())
        frame.move(frame.pos() + wanted - place.topLeft());
}

} // namespace

void FocusInSight::AddTo(QWidget& frame) {
    QObject::connect(qApp, &QApplication::focusChanged, &frame, [&frame](QWidget*, QWidget* now) {
        if (IsStopIn(frame, now) && IsLargerThanScreen(frame))
            Show(frame, *now);
    });
}
