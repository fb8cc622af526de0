#include "toolkit/ucTitleFlat.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"

#include <QEvent>
#include <QPainter>
#include <QtMath>

namespace {

constexpr QPoint Surface(12, 5);        // pixels
constexpr QPointF CaptionPlace(15, 60); // twips, on the surface

} // namespace

ucTitleFlat::ucTitleFlat(QWidget* parent)
    : TitleControl(parent) {
    resize(sizeHint());
    if (parent)
        parent->installEventFilter(this);
}

QSize ucTitleFlat::sizeHint() const {
    return {qCeil(TextWidth()) + 2 * Surface.x(), TheStyle().titleHeight};
}

void ucTitleFlat::Dock() {
    if (parentWidget())
        setGeometry(0, 0, parentWidget()->width(), height());
    update();
}

void ucTitleFlat::showEvent(QShowEvent*) {
    Dock();
}

bool ucTitleFlat::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible())
        Dock();
    return TitleControl::eventFilter(watched, event);
}

/// The frame of the window goes round its title, too.
void ucTitleFlat::paintEvent(QPaintEvent*) {
    PaintTitle(Surface,
               QPointF(Twips::ToPixels(CaptionPlace.x()), Twips::ToPixels(CaptionPlace.y())));
    QPainter painter(this);
    for (const Qt::Edge edge : {Qt::TopEdge, Qt::LeftEdge, Qt::RightEdge})
        PaintEdge(painter, rect(), edge, TheStyle().frame);
}
