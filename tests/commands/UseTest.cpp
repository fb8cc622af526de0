#include "UseTest.h"

#include "runtime/Clock.h"
#include "store/Connection.h"

#include <QJsonDocument>

#include <SQLiteCpp/SQLiteCpp.h>

void UseTest::SetUp() {
    HalvaneTest::SetUp();
    OpenDatabases();
    AddUser();
    AddUser(QStringLiteral("Ben"));
    CloseDatabases();
    Clock::SetToday(QDate(2026, 3, 2));
}

void UseTest::Store(const char* sql, bool foods) {
    const QString path = Folder() + (foods ? u"/foods.mdb" : u"/users.mdb");
    SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE).exec(sql);
}

QVariant UseTest::Stored(const QString& sql) {
    UserDB().Open(Folder() + "/users.mdb", DatabaseKind::Users);
    const QVariant value = Users(sql);
    UserDB().Close();
    return value;
}

QJsonObject UseTest::Facts(const Run& run) {
    return QJsonDocument::fromJson(run.out.toUtf8()).object();
}
