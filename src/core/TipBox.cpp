#include "core/TipBox.h"

#include "core/LeadedLabel.h"
#include "drawing/Style.h"

#include <QScrollArea>
#include <QScrollBar>

TipBox::TipBox(QWidget* parent)
    : ucBox(QStringLiteral("Tip of the day"), parent)
    , area_(new QScrollArea(this))
    , lblTip_(new LeadedLabel(QStringLiteral("lblTip"), this)) {
    area_->setWidget(lblTip_);
    area_->setWidgetResizable(true);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area_->setMouseTracking(true);
    area_->viewport()->setMouseTracking(true);
    area_->viewport()->setAutoFillBackground(false);
    lblTip_->setAutoFillBackground(false);
    connect(area_->verticalScrollBar(), &QScrollBar::rangeChanged, this, &TipBox::OfferScrolling);
    connect(this, &ucBox::InnerChanged, this, &TipBox::FitArea);
    OfferScrolling();
}

void TipBox::SetTip(const QString& tip) {
    lblTip_->setText(tip);
    lblTip_->setAccessibleName(tip);
    area_->verticalScrollBar()->setValue(0);
}

void TipBox::FitArea() {
    const int edge = TheStyle().boxGap;
    area_->setGeometry(Inner().adjusted(edge + TheStyle().groupGap, edge, -edge, -edge));
}

/// The box takes the focus only if its tip must be scrolled.
void TipBox::OfferScrolling() {
    const bool longer = area_->verticalScrollBar()->maximum() > 0;
    area_->setFocusPolicy(longer ? Qt::StrongFocus : Qt::NoFocus);
}
