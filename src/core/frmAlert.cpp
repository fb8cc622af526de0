#include "core/frmAlert.h"

#include "drawing/Pictures.h"
#include "drawing/Style.h"
#include "toolkit/ButtonRow.h"
#include "toolkit/Labels.h"
#include "toolkit/ucButton.h"

#include <QPainter>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>

namespace {

constexpr QSize AlertSize(420, 196);
constexpr int PictureSize = 32;
constexpr int PictureGap = 14;

/// The owner's window; null if it is not visible.
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
    setFixedSize(AlertSize);
    setAccessibleDescription(message);
    const QList<ucButton*> row = showCancel ? QList{cmdOK_, cmdCancel_} : QList{cmdOK_};
    const QRect above = LayButtonRow(Inner(), row);
    picture_ = QRect(QPoint(), QSize(PictureSize, PictureSize));
    picture_.moveCenter(QPoint(above.left() + PictureSize / 2, above.center().y()));
    LayMessage(above.adjusted(PictureSize + PictureGap, 0, 0, 0), message);
    LayButtons(showCancel);
}

void frmAlert::LayMessage(const QRect& place, const QString& message) {
    QLabel* lblMSG = MakeLabel(this, QStringLiteral("lblMSG"), message);
    lblMSG->setWordWrap(true);
    const int textWidth =
        BalancedWidth(message, lblMSG->font(), place.width() - TheStyle().groupGap);
    lblMSG->setContentsMargins(0, 0, place.width() - textWidth, 0);
    lblMSG->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    auto* area = new QScrollArea(this);
    area->verticalScrollBar()->setAccessibleName(QStringLiteral("Scroll the message"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->viewport()->setAutoFillBackground(false);
    area->setWidget(lblMSG);
    lblMSG->setAutoFillBackground(false);
    area->setGeometry(place.adjusted(-1, -1, 1, 1)); // its edge shows the focus
    const bool fits = lblMSG->heightForWidth(place.width()) <= place.height();
    area->setFocusPolicy(fits ? Qt::NoFocus : Qt::StrongFocus);
}

void frmAlert::LayButtons(bool showCancel) {
    cmdCancel_->setVisible(showCancel);
    connect(cmdOK_, &ucButton::Click, this, [this] {
        result_ = true;
        accept();
    });
    connect(cmdCancel_, &ucButton::Click, this, &QDialog::reject);
}

/// The safe answer of a question has the focus.
void frmAlert::showEvent(QShowEvent* event) {
    Dialog::showEvent(event);
    (cmdCancel_->isVisibleTo(this) ? cmdCancel_ : cmdOK_)->setFocus(Qt::OtherFocusReason);
}

void frmAlert::paintEvent(QPaintEvent* event) {
    Dialog::paintEvent(event);
    QPainter painter(this);
    const auto name = cmdCancel_->isVisible() ? QStringLiteral("question") : QStringLiteral("info");
    Pictures::Paint(painter, picture_, name, TheStyle().heading);
}

/// The owner may be destroyed while the message is open, and the dialog with it.
bool frmAlert::Ask(const QString& message, QObject* owner, bool showCancel) {
    const QPointer<frmAlert> dialog = new frmAlert(message, showCancel, WindowOf(owner));
    dialog->ShowModal();
    const bool result = dialog && dialog->Result();
    delete dialog.data();
    return result;
}
