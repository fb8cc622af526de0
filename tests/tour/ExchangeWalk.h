#pragma once

#include <QString>

#include <functional>
#include <string>

class Guide;
class QWidget;
class SmtpSink;

/// The only recipe goes to a friend through the real exchange, which mails it. Then it is imported
/// by the ID in the mail, with the same calories. Before that no exchange is running, and both
/// dialogs say so. The exchange's database and the mail stay in the sender's folder for the friend.
class ExchangeWalk {
public:
    ExchangeWalk(Guide& guide, const QString& folder);
    void Go();
    void Receive(); ///< the friend imports it in a folder of her own

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
    QString answer_; ///< the last message
    QString id_;     ///< the recipe's on the exchange, from the mail
};
