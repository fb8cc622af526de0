#include "support/ExchangeProcess.h"

#include <QRegularExpression>

ExchangeProcess::ExchangeProcess(const QString& program, const QString& database,
                                 const QMap<QString, QString>& settings) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HALVANE_EXCHANGE_PORT"), QStringLiteral("0"));
    environment.insert(QStringLiteral("HALVANE_EXCHANGE_DATABASE"), database);
    environment.insert(QStringLiteral("HALVANE_EXCHANGE_SECRET"), // so that no file is made for it
                       QStringLiteral("the secret of an exchange that a test starts"));
    for (auto setting = settings.cbegin(); setting != settings.cend(); ++setting)
        environment.insert("HALVANE_EXCHANGE_" + setting.key().toUpper(), setting.value());
    process_.setProcessEnvironment(environment);
    process_.setProcessChannelMode(QProcess::MergedChannels);
    process_.start(program, QStringList());
    static const QRegularExpression started(QStringLiteral("\"started\".*\"port\":(\\d+)"));
    while (port_ == 0 && process_.waitForReadyRead(30000)) {
        said_ += process_.readAll();
        port_ = started.match(QString::fromUtf8(said_)).captured(1).toInt();
    }
}

ExchangeProcess::~ExchangeProcess() {
    process_.terminate();
    if (!process_.waitForFinished(10000))
        process_.kill();
    process_.waitForFinished();
}

QString ExchangeProcess::Address() const {
    return port_ == 0 ? QString() : QStringLiteral("http://127.0.0.1:%1").arg(port_);
}
