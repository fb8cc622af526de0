#include "foods/delivery/DeliveredDatabases.h"

#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "store/NameIndex.h"
#include "store/Schema.h"
#include "store/StoreError.h"

#include <QDir>
#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

#include <functional>

namespace {

using Fill = std::function<void(SQLite::Database&)>;

/// Every value is written as its decimal text; the declared type of the column makes it a number.
void Insert(SQLite::Database& database, const std::string& table, const TsvTable& data) {
    const QStringList places(data.Columns().size(), QStringLiteral("?"));
    const QString sql = u"INSERT INTO " + QString::fromStdString(table) + u" (" +
                        data.Columns().join(u',') + u") VALUES (" + places.join(u',') + u')';
    SQLite::Statement insert(database, sql.toStdString());
    for (const QStringList& row : data.Rows()) {
        insert.reset();
        insert.clearBindings();
        for (int i = 0; i < int(row.size()); ++i)
            if (!row[i].isEmpty())
                insert.bind(i + 1, row[i].toStdString());
        insert.exec();
    }
}

void RemoveWithJournals(const QString& path) {
    for (const char* ending : {"", "-wal", "-shm", "-journal"})
        QFile::remove(path + QLatin1String(ending));
}

void InOneTransaction(const QString& path, DatabaseKind kind, const Fill& fill) {
    Connection connection;
    connection.Open(path, kind);
    StoreError::Guarded(path, [&] {
        SQLite::Transaction transaction(connection.Raw());
        fill(connection.Raw());
        transaction.commit();
    });
}

void Compact(const QString& path, DatabaseKind kind) {
    Connection connection;
    connection.Open(path, kind);
    StoreError::Guarded(path, [&] { connection.Raw().exec("VACUUM"); });
}

/// The file gets its name only when it is complete.
void MakeFile(const QString& path, DatabaseKind kind, const Fill& fill) {
    const QString unfinished = path + u".new";
    RemoveWithJournals(unfinished);
    Schema::Create(unfinished, kind);
    InOneTransaction(unfinished, kind, fill);
    Compact(unfinished, kind);
    RemoveWithJournals(path);
    if (!QFile::rename(unfinished, path))
        throw RuntimeError(ErrorNumber::FileNotFound, path + u" cannot be written");
}

void InsertFoods(SQLite::Database& database, const TsvTable& foods) {
    Insert(database, "FOODS", foods);
    database.exec(NameIndex::Compaction);
}

/// The delivered foods in a table of this connection, with the column types of FOODS.
void PutApart(SQLite::Database& database, const TsvTable& foods) {
    database.exec("CREATE TEMP TABLE Delivered AS SELECT * FROM FOODS WHERE 0");
    Insert(database, "Delivered", foods);
}

/// The stock foods of the file, or the delivered ones.
std::string Rows(const TsvTable& foods, const std::string& table) {
    return "SELECT " + foods.Columns().join(u',').toStdString() + " FROM " + table +
           " WHERE ID <= " + std::to_string(Schema::LastStockFood);
}

bool HasOthers(SQLite::Database& database, const std::string& rows, const std::string& than) {
    return database.execAndGet("SELECT EXISTS (" + rows + " EXCEPT " + than + ")").getInt() != 0;
}

/// Foods that are as delivered are not written again: the file stays as it is.
void ReplaceStockFoods(SQLite::Database& database, const TsvTable& foods) {
    PutApart(database, foods);
    const std::string stock = Rows(foods, "FOODS");
    const std::string delivered = Rows(foods, "Delivered");
    if (!HasOthers(database, stock, delivered) && !HasOthers(database, delivered, stock))
        return;
    database.exec("DELETE FROM FOODS WHERE ID <= " + std::to_string(Schema::LastStockFood));
    InsertFoods(database, foods);
}

} // namespace

DeliveredDatabases::DeliveredDatabases(QString dataFolder)
    : dataFolder_(std::move(dataFolder)) {}

void DeliveredDatabases::Build(const QString& folder) const {
    const QDir target(folder);
    target.mkpath(QStringLiteral("."));
    MakeUsers(target.filePath(QStringLiteral("users.mdb")));
    MakeFoods(target.filePath(QStringLiteral("foods.mdb")));
}

void DeliveredDatabases::Update(const QString& folder) const {
    const QDir target(folder);
    target.mkpath(QStringLiteral("."));
    const QString users = target.filePath(QStringLiteral("users.mdb"));
    const QString foods = target.filePath(QStringLiteral("foods.mdb"));
    if (!QFile::exists(users))
        MakeUsers(users);
    if (QFile::exists(foods))
        UpdateFoods(foods);
    else
        MakeFoods(foods);
}

void DeliveredDatabases::MakeUsers(const QString& path) const {
    const TsvTable intakes = Table("reference-intakes.tsv");
    MakeFile(path, DatabaseKind::Users,
             [&](SQLite::Database& database) { Insert(database, "RDI", intakes); });
}

void DeliveredDatabases::MakeFoods(const QString& path) const {
    const TsvTable foods = Table("foods.tsv");
    MakeFile(path, DatabaseKind::Foods,
             [&](SQLite::Database& database) { InsertFoods(database, foods); });
}

void DeliveredDatabases::UpdateFoods(const QString& path) const {
    const TsvTable foods = Table("foods.tsv");
    InOneTransaction(path, DatabaseKind::Foods,
                     [&](SQLite::Database& database) { ReplaceStockFoods(database, foods); });
}

TsvTable DeliveredDatabases::Table(const char* name) const {
    return TsvTable::Read(QDir(dataFolder_).filePath(QLatin1String(name)));
}
