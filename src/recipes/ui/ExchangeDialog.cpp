#include "recipes/ui/ExchangeDialog.h"

#include "drawing/Style.h"
#include "runtime/Attempt.h"
#include "toolkit/ButtonRow.h"
#include "toolkit/LineField.h"
#include "toolkit/MousePointer.h"
#include "toolkit/ucAALBL.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucTitleFlat.h"

#include <QEvent>
#include <QPointer>

static constexpr int CaptionWidth = 150;

ExchangeDialog::ExchangeDialog(const QString& name, const QString& title, QSize size,
                               QWidget* owner)
    : Dialog(name, title, owner) {
    Title()->setObjectName(QStringLiteral("ucTitleFlat1"));
    setFixedSize(size);
}

int ExchangeDialog::FieldLeft() const {
    return Inner().left() + TheStyle().nestEdge + CaptionWidth;
}

QLineEdit* ExchangeDialog::AddField(int top, const char* label, const char* caption,
                                    const char* field) {
    const Style& style = TheStyle();
    auto* text = new ucAALBL(this);
    text->setObjectName(QLatin1String(label));
    text->SetBackColor(QColor());
    text->SetForeColor(style.ink);
    text->SetFont(style.text);
    text->SetCaption(QLatin1String(caption));
    text->move(Inner().left() + style.nestEdge, top + (style.fieldHeight - text->height()) / 2);
    connect(text, &ucAALBL::MouseMove, this, [this] { AllOff(QString()); });
    auto* entry = new LineField(this);
    entry->setObjectName(QLatin1String(field));
    entry->setAccessibleName(text->Caption());
    entry->setGeometry(QRect(QPoint(FieldLeft(), top), QPoint(Inner().right() - style.nestEdge,
                                                              top + style.fieldHeight - 1)));
    Watch(entry);
    return entry;
}

ucButton* ExchangeDialog::AddButtons(const char* start, const char* caption) {
    start_ = MakeButton(this, QLatin1String(start), QLatin1String(caption));
    start_->SetMainAction(true);
    ucButton* cancel = MakeButton(this, QStringLiteral("cmdCancel"), QStringLiteral("Cancel"));
    LayButtonRow(Inner(), {start_, cancel});
    connect(cancel, &ucButton::Click, this, &QDialog::reject);
    return start_;
}

void ExchangeDialog::Watch(QWidget* control) {
    control->setMouseTracking(true);
    control->installEventFilter(this);
}

bool ExchangeDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseMove)
        AllOff(QString());
    return Dialog::eventFilter(watched, event);
}

/// A button that is disabled loses the focus. It gets it back, so that Return can try again.
bool ExchangeDialog::Wait(const std::function<void()>& work) {
    const QPointer<QWidget> focus = focusWidget();
    SetWaiting(true);
    const bool through = Attempt(work);
    SetWaiting(false);
    if (focus)
        focus->setFocus(Qt::OtherFocusReason);
    return through;
}

void ExchangeDialog::SetWaiting(bool waiting) {
    waiting_ = waiting;
    start_->SetEnabled(!waiting);
    start_->Reset();
    waiting ? MousePointer::SetBusy() : MousePointer::SetNormal();
}

void ExchangeDialog::reject() {
    if (!waiting_)
        Dialog::reject();
}
