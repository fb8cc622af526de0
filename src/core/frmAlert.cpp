#include "core/frmAlert.h"

#include "core/ButtonRow.h"
#include "toolkit/Labels.h"
#include "toolkit/ucButton.h"

#include <QPointer>
#include <QScrollArea>

#include <memory>

namespace {

constexpr QSize alertSize(420, 214);

/// The window over which an owner's message stands: none where it cannot be seen.
QWidget* WindowOf(QObject* owner) {
    auto* widget = qobject_cast<QWidget*>(owner);
    QWidget* window = widget ? widget->window() : nullptr;
    return window && window->isVisible() ? window : nullptr;
}

} // namespace

frmAlert::frmAlert(const QString& message, bool showCancel, QWidget* owner)
    : Dialog(QStringLiteral("frmAlert"), QStringLiteral("Halvane"), owner)
    , cmdOK_(MakeButton(this, QStringLiteral("cmdOK"), QStringLiteral("OK")))
    , cmdCancel_(MakeButton(this, QStringLiteral("cmdCancel"), QStringLiteral("Cancel"))) {
    setFixedSize(alertSize);
    setAccessibleDescription(message);
    const QRect above =
        LayButtonRow(Inner(), showCancel ? QList{cmdOK_, cmdCancel_} : QList{cmdOK_});
    LayMessage(above, message);
    LayButtons(showCancel);
}

void frmAlert::LayMessage(const QRect& place, const QString& message) {
    QLabel* lblMSG = MakeLabel(this, QStringLiteral("lblMSG"), message);
    lblMSG->setWordWrap(true);
    lblMSG->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->viewport()->setAutoFillBackground(false);
    area->setWidget(lblMSG);
    lblMSG->setAutoFillBackground(false);
    area->setGeometry(place);
}

void frmAlert::LayButtons(bool showCancel) {
    cmdCancel_->setVisible(showCancel);
    connect(cmdOK_, &ucButton::Click, this, [this] {
        result_ = true;
        accept();
    });
    connect(cmdCancel_, &ucButton::Click, this, &QDialog::reject);
}

/// A question waits on its safe answer.
void frmAlert::showEvent(QShowEvent* event) {
    Dialog::showEvent(event);
    (cmdCancel_->isVisibleTo(this) ? cmdCancel_ : cmdOK_)->setFocus(Qt::OtherFocusReason);
}

/// The owner may go while the message stands over it, and take the dialog along.
bool frmAlert::Ask(const QString& message, QObject* owner, bool showCancel) {
    const QPointer<frmAlert> dialog = new frmAlert(message, showCancel, WindowOf(owner));
    dialog->ShowModal();
    const bool result = dialog && dialog->Result();
    delete dialog.data();
    return result;
}
