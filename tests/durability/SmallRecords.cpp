#include "durability/SmallRecords.h"

#include "model/Profiles.h"
#include "store/Connection.h"
#include "support/Places.h"
#include "support/SamplePerson.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {

constexpr const char* Files[] = {"/users.mdb", "/foods.mdb"};

/// Leaves 48 foods. The last stock food gets the name that the search looks for.
constexpr auto FewFoods =
    "DELETE FROM FOODS WHERE ID % 500 <> 8;"
    "UPDATE FOODS SET FoodName = 'Oats', Serv_Desc_A = '1 cup', Serv_GM_WT_A = 40 WHERE ID = 23508;"
    "VACUUM";

void AddPerson(const QString& folder) {
    SmallRecords::OpenBoth(folder);
    Profiles::Append(SamplePerson(QStringLiteral("0")));
    SmallRecords::CloseBoth();
}

void AddRows(QCryptographicHash& all, SQLite::Database& database, const std::string& statement) {
    SQLite::Statement rows(database, statement);
    while (rows.executeStep())
        for (int column = 0; column < rows.getColumnCount(); ++column)
            all.addData(QByteArray::fromStdString(rows.getColumn(column).getString() + '|'));
}

void AddFile(QCryptographicHash& all, SQLite::Database& database) {
    AddRows(all, database, "PRAGMA integrity_check");
    SQLite::Statement tables(database, "SELECT name FROM sqlite_master WHERE type = 'table' "
                                       "AND name NOT LIKE 'FOODS_Trigrams%' ORDER BY name");
    while (tables.executeStep())
        AddRows(all, database,
                "SELECT * FROM \"" + tables.getColumn(0).getString() + "\" ORDER BY rowid");
}

} // namespace

void SmallRecords::LayOut(const QString& folder) {
    CopyTo(folder, Places::Build(QStringLiteral("/delivered")));
    for (const char* text : {"/tips.txt", "/agreement.txt"})
        QFile::copy(Places::Build(QStringLiteral("/delivered")) + QLatin1String(text),
                    folder + QLatin1String(text));
    SQLite::Database foods(folder.toStdString() + Files[1], SQLite::OPEN_READWRITE);
    foods.exec(FewFoods);
    AddPerson(folder);
}

void SmallRecords::CopyTo(const QString& folder, const QString& from) {
    for (const QString& left : QDir(folder).entryList({QStringLiteral("*.mdb*")}, QDir::Files))
        QFile::remove(folder + u'/' + left);
    for (const char* file : Files)
        if (!QFile::copy(from + QLatin1String(file), folder + QLatin1String(file)))
            qFatal("%s cannot be copied to %s", file, qPrintable(folder));
}

void SmallRecords::OpenBoth(const QString& folder) {
    UserDB().Open(folder + QLatin1String(Files[0]), DatabaseKind::Users);
    FoodDB().Open(folder + QLatin1String(Files[1]), DatabaseKind::Foods);
}

void SmallRecords::CloseBoth() {
    UserDB().Close();
    FoodDB().Close();
}

QByteArray SmallRecords::Contents(const QString& folder) {
    OpenBoth(folder);
    QCryptographicHash all(QCryptographicHash::Sha256);
    AddFile(all, UserDB().Raw());
    AddFile(all, FoodDB().Raw());
    CloseBoth();
    return all.result().toHex();
}

bool SmallRecords::StandAlone(const QString& folder) {
    return QDir(folder).entryList({QStringLiteral("*.mdb-*")}, QDir::Files).isEmpty();
}
