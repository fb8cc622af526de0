#include "analysis/ui/BarGrid.h"

#include "analysis/charts/PercentGrid.h"

#include <QPainter>

BarGrid::BarGrid(QWidget* parent)
    : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void BarGrid::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PercentGrid::Paint(painter, size());
}
