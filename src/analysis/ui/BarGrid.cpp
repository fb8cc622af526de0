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
    Paint(painter, size());
}

void BarGrid::Paint(QPainter& painter, QSize size) {
    painter.fillRect(QRect(QPoint(), size), TheStyle().paper);
    const int end = Twips::FromPixels(size.width());
    GridLines{Origin, Step, DarkStep, end}.DrawGrid(painter, size.height());
}
