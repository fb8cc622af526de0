#include "records/peers/PeerTest.h"

#include "model/Profiles.h"
#include "model/User.h"
#include "records/RecordsReading.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "support/Places.h"

#include <QDir>
#include <QFile>

void PeerTest::SetUp() {
    HalvaneTest::SetUp();
    SetUpRecordsAnew();
}

void PeerTest::SetUpRecordsAnew() {
    QFile::remove(Records().Users());
    QFile::remove(Records().Foods());
    OpenDatabases();
    AddUser();
    CloseDatabases();
}

QString PeerTest::Sample(const QString& name) {
    return Places::Source("/tests/records/peers/samples/" + name);
}

QString PeerTest::Write(const QString& name, const QByteArray& content) const {
    const QString path = Folder() + u'/' + name;
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return path;
}

PeerTest::Options PeerTest::From(const QString& program, const QStringList& files) const {
    Options options;
    options.from = program;
    for (const QString& file : files)
        options.files << (QDir::isAbsolutePath(file) ? file : Sample(file));
    options.rejects = Folder() + "/rejects.csv";
    options.choosePerson = [] { ::User::Current() = *Profiles::First(); };
    return options;
}

PeerTest::Result PeerTest::Import(const Options& options) const {
    return PeerImport::Run(Records(), options);
}

QString PeerTest::Failure(const Options& options) const {
    try {
        Import(options);
    } catch (const RuntimeError& error) {
        return error.Description();
    }
    return {};
}

QVariant PeerTest::User(const QString& sql) {
    const RecordsReading records(Records());
    return Users(sql);
}

QVariant PeerTest::Food(const QString& sql) {
    const RecordsReading records(Records());
    return Foods(sql);
}

QList<QVariantList> PeerTest::UserRows(const QString& sql) {
    const RecordsReading records(Records());
    return Rows(UserDB(), sql);
}

QStringList PeerTest::Listed(const Result& result, Kind kind) {
    QStringList lines;
    for (const Reject& reject : result.rejects)
        if (reject.kind == kind)
            lines << reject.origin.place + ": " + reject.reason;
    return lines;
}
