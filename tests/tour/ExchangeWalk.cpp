#include "tour/ExchangeWalk.h"

#include "support/ExchangeProcess.h"
#include "support/Files.h"
#include "support/SmtpSink.h"
#include "tour/Guide.h"
#include "tour/RecipeWalk.h"

#include "runtime/Server.h"
#include "store/Connection.h"
#include "toolkit/ListBox.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
const QString Nobody = QStringLiteral("http://127.0.0.1:9");
const QString Friend = QStringLiteral("anna@example.org");
const QString Sender = QStringLiteral("tom@example.org");

/// Milliseconds at most: the exchange answers first and mails then.
constexpr int MailArrives = 10000;

QMap<QString, QString> Mailing(const SmtpSink& sink) {
    return {{QStringLiteral("mail_relay"), QString::fromStdString(sink.Address())},
            {QStringLiteral("mail_from"), QStringLiteral("recipes@halvane.test")},
            {QStringLiteral("mail_tls"), QStringLiteral("none")}};
}

QString IDIn(const QString& mail) {
    static const QRegularExpression number(QStringLiteral("The recipe ID is (\\d+)\\."));
    return number.match(mail).captured(1);
}
} // namespace

ExchangeWalk::ExchangeWalk(Guide& guide, const QString& folder)
    : guide_(guide)
    , folder_(folder) {}

void ExchangeWalk::Go() {
    guide_.Press(Frame(), QStringLiteral("cmdRecipes"));
    FindNoExchange();
    const SmtpSink sink;
    const ExchangeProcess exchange(QStringLiteral(HALVANE_EXCHANGE_PROGRAM), ExchangeDatabase(),
                                   Mailing(sink));
    guide_.Check(!exchange.Address().isEmpty(),
                 QStringLiteral("the exchange has started: ") + exchange.Said().trimmed());
    Server::SetAddress(exchange.Address());
    Send();
    ReadMail(sink);
    Import();
    CompareBoth();
    Server::SetAddress(QString());
}

void ExchangeWalk::Receive() {
    const QString mail = QString::fromStdString(ReadFile(MailFile()));
    id_ = IDIn(mail);
    const ExchangeProcess exchange(QStringLiteral(HALVANE_EXCHANGE_PROGRAM), ExchangeDatabase());
    Server::SetAddress(exchange.Address());
    guide_.Press(Frame(), QStringLiteral("cmdRecipes"));
    guide_.CheckValue(UserDB(), QStringLiteral("SELECT count(*) FROM Recipes"), 0);
    Import();
    LookAtReceived(mail);
    EatReceived();
}

QString ExchangeWalk::ExchangeDatabase() {
    return folder_ + QStringLiteral("/exchange.db");
}

std::string ExchangeWalk::MailFile() {
    return folder_.toStdString() + "/mail.txt";
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

QString ExchangeWalk::CardCalories() {
    return guide_.Find(Screen(), QStringLiteral("aaCals"))->property("Caption").toString();
}

/// Presses a button that brings up a message, and keeps its text.
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
    guide_.Type(dialog, QStringLiteral("txtEmail"), Friend);
    PressThrough(dialog, QStringLiteral("cmdSend"), QStringLiteral("alert-send-no-sender"));
    guide_.Type(dialog, QStringLiteral("txtFrom"), Sender);
}

/// The dialog still has the addresses of the failed attempt. A picture is taken during the wait.
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
}

void ExchangeWalk::ReadMail(const SmtpSink& sink) {
    const bool arrived = QTest::qWaitFor([&sink] { return !sink.Mails().empty(); }, MailArrives);
    const auto mails = sink.Mails();
    guide_.Check(arrived && mails.size() == 1, QStringLiteral("one mail has arrived"));
    const SmtpSink::Mail mail = mails.empty() ? SmtpSink::Mail() : mails.front();
    const std::string text = mail.Body();
    WriteFile(MailFile(), text);
    id_ = IDIn(QString::fromStdString(text));
    guide_.Check(mail.to == std::vector{Friend.toStdString()},
                 QStringLiteral("the mail is for the friend alone"));
    guide_.Check(mail.Header("Reply-To") == "<" + Sender.toStdString() + ">",
                 QStringLiteral("an answer to the mail goes to the sender"));
    guide_.Check(!id_.isEmpty() && answer_.contains(id_),
                 QStringLiteral("the mail and the answer tell the ID: ") + answer_);
    guide_.Check(text.find(CardCalories().toStdString()) != std::string::npos,
                 QStringLiteral("the mail tells what the card tells: ") + CardCalories());
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
        calories << CardCalories();
    }
    guide_.Check(calories.size() == 2 && calories.first() == calories.last() &&
                     calories.first().endsWith(QStringLiteral("per serving")),
                 QStringLiteral("both cards tell the same: ") + calories.join(u' '));
    guide_.Picture(Frame(), QStringLiteral("recipe-imported"));
}

/// The friend's card and the mail show the same calories.
void ExchangeWalk::LookAtReceived(const QString& mail) {
    guide_.Picture(Frame(), QStringLiteral("friend-recipe"));
    guide_.Check(CardCalories().endsWith(QStringLiteral("per serving")) &&
                     mail.contains(CardCalories()),
                 QStringLiteral("the friend's card tells the same: ") + CardCalories());
}

/// What the friend logs equals the sum of the sender's ingredients.
void ExchangeWalk::EatReceived() {
    SQLite::Database sender(folder_.toStdString() + "/users.mdb");
    const auto calories = sender.execAndGet("SELECT round(sum(Calories), 6) FROM Ingredients "
                                            "WHERE RecipeID = 1");
    RecipeWalk(guide_).EatRecipe();
    guide_.CheckValue(UserDB(),
                      QStringLiteral("SELECT count(*) || ' ' || round(sum(Calories), 6) "
                                     "FROM USER_FOODS"),
                      QString("1 " + QString::fromStdString(calories.getString())));
}
