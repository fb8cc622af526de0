#include "analysis/ui/ChartBar.h"

#include "analysis/charts/BarPainting.h"
#include "drawing/Twips.h"

#include <QPainter>

ChartBar::ChartBar(QWidget* parent)
    : ChartPiece(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(0, BarPainting::Height);
}

void ChartBar::SetWidth(double twips) {
    if (width_ == twips)
        return;
    width_ = twips;
    resize(Twips::ToPixels(twips), BarPainting::Height);
}

void ChartBar::SetHilited(bool hilited) {
    if (hilited_ == hilited)
        return;
    hilited_ = hilited;
    update();
}

void ChartBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    BarPainting::Paint(painter, rect(), hilited_);
}
