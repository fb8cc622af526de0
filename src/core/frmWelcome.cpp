#include "core/frmWelcome.h"

#include "drawing/Pictures.h"
#include "model/ui/frmProfile.h"
#include "runtime/Seams.h"
#include "toolkit/ButtonRow.h"
#include "toolkit/Labels.h"
#include "toolkit/ucButton.h"

#include <QPainter>

namespace {

constexpr QSize WelcomeSize(480, 226);
constexpr QRect Picture(24, 64, 96, 96);
constexpr int TextLeft = 144;
constexpr auto Text =
    "In order to begin using Halvane, you will need to create a user profile. In the following "
    "screen you can enter your profile information. This information can be changed later by "
    "using the Profile Manager which can be found under the \"Edit\" menu.";

} // namespace

frmWelcome::frmWelcome()
    : Dialog(QStringLiteral("frmWelcome"), QStringLiteral("Welcome to Halvane")) {
    setFixedSize(WelcomeSize);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* begin = MakeButton(this, QStringLiteral("cmdBegin"), QStringLiteral("Begin"));
    LayText(LayButtonRow(Inner(), {begin}));
    begin->SetMainAction(true);
    begin->setFocus(Qt::OtherFocusReason);
    connect(begin, &ucButton::Click, this, &frmWelcome::Begin);
}

void frmWelcome::Open() {
    (new frmWelcome)->show();
}

void frmWelcome::LayText(const QRect& place) {
    QLabel* label = MakeLabel(this, QStringLiteral("lblWelcome"), QLatin1String(Text));
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    QRect beside(QPoint(TextLeft, place.top()), place.bottomRight());
    beside.moveCenter(QPoint(beside.center().x(), Picture.center().y()));
    label->setGeometry(beside);
}

void frmWelcome::Begin() {
    accept();
    frmProfile::CreateFirstUser();
}

void frmWelcome::reject() {
    Dialog::reject();
    EndProcess(0);
}

void frmWelcome::paintEvent(QPaintEvent* event) {
    Dialog::paintEvent(event);
    QPainter painter(this);
    Pictures::Paint(painter, Picture, QStringLiteral("logo"));
}
