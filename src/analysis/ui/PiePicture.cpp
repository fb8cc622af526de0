#include "analysis/ui/PiePicture.h"

#include "toolkit/PlainTip.h"
#include "toolkit/SpokenRole.h"

#include <QHelpEvent>
#include <QPainter>

PiePicture::PiePicture(PieForm form, QWidget* parent)
    : QWidget(parent)
    , pie_(form) {
    SetSpokenRole(this, QAccessible::Graphic);
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

bool PiePicture::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    auto& asked = static_cast<QHelpEvent&>(*event);
    ShowPlainTip(asked, pie_.CaptionAt(asked.pos()), this);
    return true;
}

void PiePicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    pie_.Paint(painter);
}
