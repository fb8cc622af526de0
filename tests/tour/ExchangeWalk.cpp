#include "tour/ExchangeWalk.h"

#include "support/ExchangeProcess.h"
#include "tour/Guide.h"

#include "runtime/Server.h"
#include "store/Connection.h"
#include "toolkit/ListBox.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

namespace {
const QString Nobody = QStringLiteral("http://127.0.0.1:9");
} // namespace

ExchangeWalk::ExchangeWalk(Guide& guide, const QString& folder)
    : guide_(guide)
    , folder_(folder) {}

void ExchangeWalk::Go() {
    guide_.Press(Frame(), QStringLiteral("cmdRecipes"));
    FindNoExchange();
    const ExchangeProcess exchange(QStringLiteral(HALVANE_EXCHANGE_PROGRAM),
                                   folder_ + QStringLiteral("/exchange.db"));
    guide_.Check(!exchange.Address().isEmpty(), QStringLiteral("the exchange has started"));
    Server::SetAddress(exchange.Address());
    Send();
    Import();
    CompareBoth();
    Server::SetAddress(QString());
}

QWidget* ExchangeWalk::Frame() {
    return guide_.Window(QStringLiteral("frmHOME"));
}

QWidget* ExchangeWalk::Screen() {
    return guide_.Window(QStringLiteral("frmRecipeManager"));
}

void ExchangeWalk::OpenSend(const std::function<void(QWidget*)>& visit) {
    guide_.Foresee(QStringLiteral("frmSend"), visit);
    guide_.Press(Screen(), QStringLiteral("cmdSend"));
}

void ExchangeWalk::OpenImport(const std::function<void(QWidget*)>& visit) {
    guide_.Foresee(QStringLiteral("frmImport"), visit);
    guide_.Press(Screen(), QStringLiteral("cmdImport"));
}

/// Presses a button that ends in a message, and keeps what that says.
void ExchangeWalk::PressThrough(QWidget* dialog, const QString& button, const QString& name) {
    guide_.ForeseeNext(QStringLiteral("frmAlert"), [this, &name](QWidget* alert) {
        answer_ = guide_.Find<QLabel>(alert, QStringLiteral("lblMSG"))->text();
        guide_.Picture(alert, name);
        guide_.Press(alert, QStringLiteral("cmdOK"));
    });
    guide_.Press(dialog, button);
}

void ExchangeWalk::FindNoExchange() {
    Server::SetAddress(Nobody);
    OpenImport([this](QWidget* dialog) {
        guide_.Picture(dialog, QStringLiteral("import-empty"));
        PressThrough(dialog, QStringLiteral("cmdGo"), QStringLiteral("alert-import-no-id"));
        guide_.Type(dialog, QStringLiteral("txtRecID"), QStringLiteral("1218105222"));
        PressThrough(dialog, QStringLiteral("cmdGo"), QStringLiteral("alert-import-failed"));
        guide_.Check(answer_.startsWith(QStringLiteral("The recipe could not be imported.")),
                     QStringLiteral("without an exchange there is no import"));
        guide_.Press(dialog, QStringLiteral("cmdCancel"));
    });
    OpenSend([this](QWidget* dialog) {
        guide_.Picture(dialog, QStringLiteral("send-empty"));
        AskForAddresses(dialog);
        PressThrough(dialog, QStringLiteral("cmdSend"), QStringLiteral("alert-send-failed"));
    });
    guide_.Check(answer_.startsWith(QStringLiteral("There was an error posting your recipe.")),
                 QStringLiteral("without an exchange nothing is sent"));
}

void ExchangeWalk::AskForAddresses(QWidget* dialog) {
    PressThrough(dialog, QStringLiteral("cmdSend"), QStringLiteral("alert-send-no-recipient"));
    guide_.Type(dialog, QStringLiteral("txtEmail"), QStringLiteral("anna@example.org"));
    PressThrough(dialog, QStringLiteral("cmdSend"), QStringLiteral("alert-send-no-sender"));
    guide_.Type(dialog, QStringLiteral("txtFrom"), QStringLiteral("tom@example.org"));
}

/// The addresses are those of the send that failed. The picture of the wait is taken in it.
void ExchangeWalk::Send() {
    OpenSend([this](QWidget* dialog) {
        QTest::mouseClick(guide_.Find(dialog, QStringLiteral("ckShare")), Qt::LeftButton,
                          Qt::NoModifier, QPoint(8, 12));
        guide_.Picture(dialog, QStringLiteral("send-filled"));
        QTimer::singleShot(0, dialog, [this, dialog] {
            guide_.Check(!guide_.Find(dialog, QStringLiteral("cmdSend"))->isEnabled(),
                         QStringLiteral("the button is disabled while it waits"));
            guide_.Picture(dialog, QStringLiteral("send-busy"));
        });
        PressThrough(dialog, QStringLiteral("cmdSend"), QStringLiteral("alert-sent"));
    });
    static const QRegularExpression number(QStringLiteral("recipe ID (\\d+)"));
    id_ = number.match(answer_).captured(1);
    guide_.Check(!id_.isEmpty(), QStringLiteral("the answer tells the ID: ") + answer_);
}

void ExchangeWalk::ImportUnknown(QWidget* dialog) {
    guide_.Type(dialog, QStringLiteral("txtRecID"), QStringLiteral("4711"));
    PressThrough(dialog, QStringLiteral("cmdGo"), QStringLiteral("alert-import-unknown"));
    guide_.Check(answer_.startsWith(QStringLiteral("Recipe not found")) && dialog->isVisible(),
                 QStringLiteral("an unknown ID is told, and the dialog stays"));
}

void ExchangeWalk::Import() {
    OpenImport([this](QWidget* dialog) {
        ImportUnknown(dialog);
        guide_.Type(dialog, QStringLiteral("txtRecID"), id_);
        guide_.Picture(dialog, QStringLiteral("import-filled"));
        PressThrough(dialog, QStringLiteral("cmdGo"), QStringLiteral("alert-imported"));
    });
    guide_.Check(answer_ == QStringLiteral("The recipe has been successfully imported!"),
                 QStringLiteral("the recipe is imported: ") + answer_);
}

void ExchangeWalk::CompareBoth() {
    guide_.CheckValue(UserDB(),
                      QStringLiteral("SELECT count(*) || ' ' || count(DISTINCT RecipeName) || ' ' "
                                     "|| count(DISTINCT total) FROM (SELECT RecipeID, "
                                     "sum(Calories) AS total FROM Ingredients GROUP BY RecipeID) "
                                     "JOIN Recipes USING (RecipeID)"),
                      QStringLiteral("2 1 1"));
    auto* list = guide_.Find<ListBox>(Screen(), QStringLiteral("lsRecipes"));
    QStringList calories;
    for (int line = 0; line < list->ListCount(); ++line) {
        list->SetListIndex(line);
        calories << guide_.Find(Screen(), QStringLiteral("aaCals"))->property("Caption").toString();
    }
    guide_.Check(calories.size() == 2 && calories.first() == calories.last() &&
                     calories.first().endsWith(QStringLiteral("per serving")),
                 QStringLiteral("both cards tell the same: ") + calories.join(u' '));
    guide_.Picture(Frame(), QStringLiteral("recipe-imported"));
}
