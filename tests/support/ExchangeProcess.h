#pragma once

#include <QProcess>

/// The real recipe exchange as a process on a free port of loopback. It is ready when it is made,
/// and ends with the object.
class ExchangeProcess {
public:
    /// `database` is what the setting of the server takes: a file, or a PostgreSQL database.
    ExchangeProcess(const QString& program, const QString& database);
    ~ExchangeProcess();
    ExchangeProcess(const ExchangeProcess&) = delete;
    ExchangeProcess& operator=(const ExchangeProcess&) = delete;

    QString Address() const; ///< empty where it did not start
    const QByteArray& Said() const { return said_; }

private:
    QProcess process_;
    QByteArray said_;
    int port_ = 0;
};
