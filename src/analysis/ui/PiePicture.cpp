#include "analysis/ui/PiePicture.h"

#include <QPainter>

PiePicture::PiePicture(PieForm form, QWidget* parent)
    : QWidget(parent)
    , pie_(std::move(form)) {
    setFixedSize(pie_.Form().size);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(QStringLiteral("Caloric breakdown"));
}

void PiePicture::DrawPie(double fat, double protein, double carbs) {
    pie_.DrawPie(fat, protein, carbs);
    Refresh();
}

void PiePicture::ShowNoData() {
    pie_.ShowNoData();
    Refresh();
}

void PiePicture::AddOverLay() {
    pie_.AddOverLay();
    update();
}

void PiePicture::Refresh() {
    setAccessibleDescription(pie_.Summary());
    update();
}

void PiePicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawImage(0, 0, pie_.picPIE(painter.deviceTransform().m11()));
}
