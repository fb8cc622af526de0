#include "core/frmEULA.h"

#include "core/TextFile.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "toolkit/ButtonRow.h"
#include "toolkit/ucButton.h"

#include <QPlainTextEdit>
#include <QScrollBar>

namespace {

constexpr QSize AgreementSize(560, 460);

/// Removes the line breaks of the text, so that it wraps freely.
QString AgreementText() {
    QString text = QString::fromUtf8(TextFile::ReadBeside(QStringLiteral("agreement.txt")));
    return text.remove(u'\r').remove(u'\n');
}

} // namespace

frmEULA::frmEULA()
    : Dialog(QStringLiteral("frmEULA"), QStringLiteral("Halvane License Agreement")) {
    setFixedSize(AgreementSize);
    auto* accept = MakeButton(this, QStringLiteral("cmdAccept"), QStringLiteral("Accept"));
    auto* decline = MakeButton(this, QStringLiteral("cmdNO"), QStringLiteral("Decline"));
    LayText(LayButtonRow(Inner(), {accept, decline}));
    connect(accept, &ucButton::Click, this, &frmEULA::Accept);
    connect(decline, &ucButton::Click, this, &QDialog::reject);
}

void frmEULA::LayText(const QRect& place) {
    auto* eu = new QPlainTextEdit(AgreementText(), this);
    eu->setObjectName(QStringLiteral("eu"));
    eu->setAccessibleName(QStringLiteral("License agreement"));
    eu->verticalScrollBar()->setAccessibleName(QStringLiteral("Scroll the agreement"));
    eu->setReadOnly(true);
    eu->setTabChangesFocus(true);
    eu->setGeometry(place);
    setTabOrder(eu, findChild<ucButton*>(QStringLiteral("cmdAccept")));
    eu->setFocus(Qt::OtherFocusReason); // the user reads before choosing
}

void frmEULA::Accept() {
    SetRegValue(Settings::Agreement, QStringLiteral("YES"));
    accept();
}

bool frmEULA::Ask() {
    return frmEULA().ShowModal() == QDialog::Accepted;
}
