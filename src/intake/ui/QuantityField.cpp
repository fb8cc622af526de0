#include "intake/ui/QuantityField.h"

#include "drawing/Style.h"
#include "runtime/Convert.h"
#include "toolkit/ucAte.h"
#include "toolkit/ucButtonA.h"

#include <QKeyEvent>

static constexpr int FieldWidth = 70;

QuantityField::QuantityField(ucAte* line, double quantity)
    : LineField(DecimalText(quantity), line)
    , line_(line)
    , recID_(ToInteger(line->ID()))
    , old_(quantity) {
    const int height = TheStyle().fieldHeight;
    const int room = FieldWidth + TheStyle().groupGap;
    const int left = line->layoutRects().imgTrash.left() - room;
    setObjectName(QStringLiteral("txtQTY"));
    setAccessibleName("Quantity of " + line->FoodName() + u", " + line->Serv());
    setToolTip(QStringLiteral("Enter a quantity"));
    setGeometry(left, (line->height() - height) / 2, FieldWidth, height);
    connect(this, &QLineEdit::returnPressed, this, &QuantityField::Entered);
    selectAll();
    line->KeepClear(room);
    show();
    setFocus(Qt::OtherFocusReason);
}

double QuantityField::Quantity() const {
    return NumberOrZero(text());
}

void QuantityField::Close() {
    open_ = false;
    if (hasFocus())
        line_->imgTrash()->setFocus(Qt::TabFocusReason);
    hide();
    line_->KeepClear(0);
    deleteLater();
}

void QuantityField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        Close();
    else
        LineField::keyPressEvent(event);
}

void QuantityField::focusOutEvent(QFocusEvent* event) {
    LineField::focusOutEvent(event);
    const Qt::FocusReason reason = event->reason();
    const bool comesBack = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
    if (open_ && !comesBack)
        Q_EMIT Left();
}
