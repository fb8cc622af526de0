#include "analysis/BarGrid.h"

#include "toolkit/Style.h"
#include "toolkit/Twips.h"

#include <QPainter>

BarGrid::BarGrid(QWidget* parent)
    : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void BarGrid::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), TheStyle().paper);
    DrawGrid(painter);
}

void BarGrid::DrawGrid(QPainter& painter) const {
    const Style& style = TheStyle();
    const int bottom = Twips::ToPixels(Twips::FromPixels(height()) - Foot);
    for (int n = 0; Origin + n <= Twips::FromPixels(width()); n += Step) {
        const QColor& colour = n % DarkStep == 0 ? style.gridDark : style.gridLight;
        painter.fillRect(Twips::ToPixels(Origin + n), 0, 1, bottom, colour);
    }
}
