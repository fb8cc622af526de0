#include "intake/ui/WeightField.h"

#include <QFocusEvent>

WeightField::WeightField(QWidget* parent)
    : LineField(parent) {
    connect(this, &QLineEdit::textEdited, this, [this] { entered_ = true; });
}

void WeightField::focusInEvent(QFocusEvent* event) {
    LineField::focusInEvent(event);
    entered_ = true;
}

void WeightField::focusOutEvent(QFocusEvent* event) {
    LineField::focusOutEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
        reason != Qt::MenuBarFocusReason)
        Leave();
}

void WeightField::Leave() {
    if (!entered_)
        return;
    entered_ = false;
    Q_EMIT Left();
}
