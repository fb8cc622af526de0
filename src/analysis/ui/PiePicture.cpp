#include "analysis/ui/PiePicture.h"

#include <QPainter>

PiePicture::PiePicture(PieForm form, QWidget* parent)
    : QWidget(parent)
    , pie_(form) {
    setFixedSize(pie_.Form().size);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(QStringLiteral("Caloric breakdown"));
}

void PiePicture::Show(const EnergyShares& shares) {
    pie_.Show(shares);
    setAccessibleDescription(pie_.Summary());
    update();
}

void PiePicture::AddOverLay() {
    pie_.AddOverLay();
    update();
}

void PiePicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    pie_.Paint(painter);
}
