#include "recipes/ui/frmSend.h"

#include "drawing/Style.h"
#include "recipes/net/RecipeExchange.h"
#include "runtime/Seams.h"
#include "runtime/Server.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "toolkit/ucButton.h"

#include <QCheckBox>
#include <QLineEdit>

namespace {

constexpr QSize SendSize(460, 196);

/// A page of markup, or fewer than two characters, is not an answer for a person.
bool IsNoAnswer(const QString& reply) {
    return reply.startsWith(u'<') || reply.startsWith(QLatin1String(" <")) || reply.size() < 2;
}

QString FailureText() {
    return "There was an error posting your recipe. Please ensure you are connected to the "
           "internet and try again. If this problem persists, please contact " +
           Server::Support() + u'.';
}

} // namespace

frmSend::frmSend(qint32 RecipeID, QWidget* owner)
    : ExchangeDialog(QStringLiteral("frmSend"), QStringLiteral("Send Recipe"), SendSize, owner)
    , recipeID_(RecipeID) {
    const Style& style = TheStyle();
    const int line = style.fieldHeight + style.boxGap;
    const int top = Inner().top() + style.nestEdge;
    txtEmail_ = AddField(top, "ucAALBL1", "Friend's email address:", "txtEmail");
    txtFrom_ = AddField(top + line, "ucAALBL2", "Your email address:", "txtFrom");
    AddShare(top + 2 * line);
    const ucButton* send = AddButtons("cmdSend", "Send Recipe");
    connect(send, &ucButton::Click, this, &frmSend::cmdSend_Click);
    txtEmail_->setText(GetRegValue(Settings::ToEmail));
    txtFrom_->setText(GetRegValue(Settings::FromEmail));
}

void frmSend::AddShare(int top) {
    ckShare_ = new QCheckBox(
        QStringLiteral("Share this recipe with all Halvane users at the Halvane web site."), this);
    ckShare_->setObjectName(QStringLiteral("ckShare"));
    ckShare_->setAccessibleName(ckShare_->text());
    ckShare_->setGeometry(Inner().left() + TheStyle().nestEdge, top,
                          Inner().width() - 2 * TheStyle().nestEdge, TheStyle().fieldHeight);
    Watch(ckShare_);
}

void frmSend::cmdSend_Click() {
    if (txtEmail_->text().isEmpty())
        ShowAlert(QStringLiteral("Please enter a recipient email address."), this);
    else if (txtFrom_->text().isEmpty())
        ShowAlert(QStringLiteral("Please enter your email address."), this);
    else
        startSend();
}

void frmSend::startSend() {
    const QString reply = Reply();
    SetRegValue(Settings::ToEmail, txtEmail_->text());
    SetRegValue(Settings::FromEmail, txtFrom_->text());
    ShowAlert(reply, parentWidget());
    accept();
}

QString frmSend::Reply() {
    QString reply;
    Wait([&] {
        reply = RecipeExchange::Send(Exchange(), recipeID_,
                                     {txtFrom_->text(), txtEmail_->text(), ckShare_->isChecked()});
    });
    return IsNoAnswer(reply) ? FailureText() : reply;
}
