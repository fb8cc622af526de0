#pragma once

#include <QString>

#include <functional>

class Guide;
class QWidget;

/// The one recipe that is there goes to a friend through the real exchange and comes back by the ID
/// that it got there, with the same calories. First there is no exchange, which both dialogs say.
class ExchangeWalk {
public:
    ExchangeWalk(Guide& guide, const QString& folder);
    void Go();

private:
    void FindNoExchange();
    void AskForAddresses(QWidget* dialog);
    void Send();
    void ImportUnknown(QWidget* dialog);
    void Import();
    void CompareBoth();

    void OpenSend(const std::function<void(QWidget*)>& visit);
    void OpenImport(const std::function<void(QWidget*)>& visit);
    void PressThrough(QWidget* dialog, const QString& button, const QString& name);
    QWidget* Frame();
    QWidget* Screen();

    Guide& guide_;
    QString folder_;
    QString answer_; ///< what the last message said
    QString id_;     ///< on the exchange
};
