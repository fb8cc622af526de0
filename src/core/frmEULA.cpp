#include "core/frmEULA.h"

#include "core/SettingNames.h"
#include "core/TextFile.h"
#include "runtime/Settings.h"
#include "toolkit/ButtonRow.h"
#include "toolkit/ucButton.h"

#include <QPlainTextEdit>

namespace {

constexpr QSize agreementSize(560, 460);

/// The text wraps freely: its own line breaks are taken out.
QString AgreementText() {
    QString text = QString::fromUtf8(TextFile::ReadBeside(QStringLiteral("agreement.txt")));
    return text.remove(u'\r').remove(u'\n');
}

} // namespace

frmEULA::frmEULA()
    : Dialog(QStringLiteral("frmEULA"), QStringLiteral("Halvane License Agreement")) {
    setFixedSize(agreementSize);
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
    eu->setReadOnly(true);
    eu->setTabChangesFocus(true);
    eu->setGeometry(place);
    setTabOrder(eu, findChild<ucButton*>(QStringLiteral("cmdAccept")));
    eu->setFocus(Qt::OtherFocusReason); // reading comes before choosing
}

void frmEULA::Accept() {
    SetRegValue(SettingNames::Agreement, QStringLiteral("YES"));
    accept();
}

bool frmEULA::Ask() {
    return frmEULA().ShowModal() == QDialog::Accepted;
}
