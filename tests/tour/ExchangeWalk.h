#pragma once

#include <QString>

#include <functional>
#include <string>

class Guide;
class QWidget;
class SmtpSink;

/// The one recipe that is there goes to a friend through the real exchange, which mails it, and
/// comes back by the ID that the mail tells, with the same calories. First there is no exchange,
/// which both dialogs say. The exchange's database and the mail stay in the sender's folder for the
/// friend.
class ExchangeWalk {
public:
    ExchangeWalk(Guide& guide, const QString& folder);
    void Go();
    void Receive(); ///< by the friend, in the program's folder of her own

private:
    void FindNoExchange();
    void AskForAddresses(QWidget* dialog);
    void Send();
    void ImportUnknown(QWidget* dialog);
    void Import();
    void CompareBoth();
    void ReadMail(const SmtpSink& sink);
    void LookAtReceived(const QString& mail);
    void EatReceived();

    void OpenSend(const std::function<void(QWidget*)>& visit);
    void OpenImport(const std::function<void(QWidget*)>& visit);
    void PressThrough(QWidget* dialog, const QString& button, const QString& name);
    QWidget* Frame();
    QWidget* Screen();
    QString CardCalories();
    QString ExchangeDatabase();
    std::string MailFile();

    Guide& guide_;
    QString folder_; ///< the sender's
    QString answer_; ///< what the last message said
    QString id_;     ///< on the exchange, as the mail tells it
};
