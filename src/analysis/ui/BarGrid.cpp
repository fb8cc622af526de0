#include "analysis/ui/BarGrid.h"

#include "analysis/ui/GridLines.h"
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
    GridLines{Origin, Step, DarkStep, Twips::FromPixels(width())}.DrawGrid(painter, height());
}
