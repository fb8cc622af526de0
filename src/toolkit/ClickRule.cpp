#include "toolkit/ClickRule.h"

#include <QMouseEvent>
#include <QWidget>

#include <utility>

void ClickRule::Begin(const QMouseEvent* press) {
    if (press->button() == Qt::LeftButton)
        begun_ = true;
}

/// A position between two pixels belongs to the pixel above and left of it.
bool ClickRule::Ends(const QMouseEvent* release, const QWidget* control) {
    if (release->button() != Qt::LeftButton || !std::exchange(begun_, false))
        return false;
    const QPointF place = release->position();
    return place.x() >= 0 && place.y() >= 0 && place.x() < control->width() &&
           place.y() < control->height();
}
