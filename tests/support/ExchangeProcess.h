#pragma once

#include <QMap>
#include <QProcess>

/// The real recipe exchange as a process on a free loopback port. It is ready when constructed and
/// ends with the object.
class ExchangeProcess {
public:
    /// Takes the settings of the server's file; `database` is a file or a PostgreSQL database.
    ExchangeProcess(const QString& program, const QString& database,
                    const QMap<QString, QString>& settings = {});
    ~ExchangeProcess();
    ExchangeProcess(const ExchangeProcess&) = delete;
    ExchangeProcess& operator=(const ExchangeProcess&) = delete;

    QString Address() const; ///< empty if it did not start
    const QByteArray& Said() const { return said_; }

private:
    QProcess process_;
    QByteArray said_;
    int port_ = 0;
};
