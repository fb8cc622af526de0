#include "toolkit/ucTextRaised.h"

#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"

#include <QPainter>
#include <QtMath>

namespace {

/// Printed in this order; twips to the right of and below the text.
constexpr QPointF ShadowShifts[] = {{30, 30}, {30, 15}, {15, 30}, {15, 15}};

} // namespace

ucTextRaised::ucTextRaised(QWidget* parent)
    : PaintedPanel(parent) {
    setFont(TheStyle().raised);
    resize(sizeHint());
}

void ucTextRaised::SetPicture(const QPixmap& picture) {
    picture_ = picture;
    update();
}

QSize ucTextRaised::sizeHint() const {
    return {qCeil(TextWidth()) + 16, qCeil(TextHeight()) + 8};
}

void ucTextRaised::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!picture_.isNull())
        painter.drawPixmap(0, 0, picture_);
    const QPointF place(width() / 2.0 - TextWidth() / 2, height() / 2.0 - TextHeight() / 2);
    for (const QPointF& shift : ShadowShifts)
        PrintCaption(painter, TheStyle().raisedShadow,
                     place + QPointF(Twips::ToPixels(shift.x()), Twips::ToPixels(shift.y())));
    PrintCaption(painter, TheStyle().raisedText, place);
}
