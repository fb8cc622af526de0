#pragma once

#include "RecordsTest.h"

#include "records/SnapshotMaking.h"
#include "records/Snapshots.h"

#include <QDir>
#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

/// Records with a profile, and their snapshots.
class SnapshotTest : public RecordsTest {
protected:
    void SetUp() override {
        RecordsTest::SetUp();
        UserDB().Open(Records().Users(), DatabaseKind::Users);
        AddUser();
        CloseDatabases();
    }

    Snapshots All() const { return Snapshots(Records()); }
    Snapshot Make(SnapshotKind kind = SnapshotKind::Manual) const {
        return SnapshotMaking(Records(), All().Place()).Make(kind, "of a test");
    }
    /// A snapshot as of another day; only its note is real.
    void Pretend(const QDateTime& moment, SnapshotKind kind) const {
        Snapshot snapshot;
        snapshot.moment = moment.toUTC();
        snapshot.kind = kind;
        snapshot.path = All().Place() + u'/' +
                        snapshot.moment.toString(QStringLiteral("yyyyMMddHHmmsszzz")) + u'-' +
                        QLatin1String(SnapshotKinds::Of(kind).name);
        ASSERT_TRUE(QDir().mkpath(snapshot.path));
        snapshot.WriteNote();
    }

    static void Change(const QString& path, const char* sql) {
        SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE).exec(sql);
    }
    void AddWeight(const char* day, int weight) const {
        Change(Records().Users(), ("INSERT INTO USER_WEIGHTS VALUES (1, '" + std::string(day) +
                                   "', " + std::to_string(weight) + ")")
                                      .c_str());
    }
    void AddOwnFood(const char* name) const {
        Change(Records().Foods(), ("INSERT INTO FOODS (ID, FoodName) SELECT max(ID) + 1, '" +
                                   std::string(name) + "' FROM FOODS")
                                      .c_str());
    }
    /// The index of the weights no longer fits its table.
    void SpoilIndex() const {
        Change(Records().Users(), "PRAGMA writable_schema = ON; UPDATE sqlite_schema SET sql = "
                                  "replace(sql, '(UID, UDate)', '(UDate, UID)') "
                                  "WHERE name = 'USER_WEIGHTS_Day'");
    }
    /// The files are as the version before the index of names left them.
    void BecomeVersionTwo() const {
        Change(Records().Users(), "PRAGMA user_version = 2");
        Change(Records().Foods(), "DROP TRIGGER FOODS_Trigrams_Added; DROP TRIGGER "
                                  "FOODS_Trigrams_Removed; DROP TRIGGER FOODS_Trigrams_Changed; "
                                  "DROP TABLE FOODS_Trigrams; DROP INDEX FOODS_Unindexed; "
                                  "PRAGMA user_version = 2");
    }
    static QByteArray Bytes(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }
    static void Damage(const QString& path, qint64 at = 0) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.seek(at);
        file.write(QByteArray(4096, '\x55'));
    }
    /// All rows of both files, as text.
    static QStringList Rows(const RecordsFolder& folder) {
        QStringList rows;
        for (const RecordsFile& file : RecordsFiles) {
            const QByteArray path = folder.File(file.name).toUtf8();
            SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
            SQLite::Statement tables(database, "SELECT name FROM sqlite_schema WHERE type = 'table'"
                                               " ORDER BY name");
            while (tables.executeStep())
                rows << Rows(database, tables.getColumn(0).getString());
            rows << QString::number(database.execAndGet("PRAGMA user_version").getInt());
        }
        return rows;
    }

private:
    static QStringList Rows(SQLite::Database& database, const std::string& table) {
        QStringList rows;
        SQLite::Statement statement(database, "SELECT * FROM " + table + " LIMIT 2000");
        while (statement.executeStep()) {
            QString row = QString::fromStdString(table);
            for (int i = 0; i < statement.getColumnCount(); ++i)
                row += u'|' + QString::fromStdString(statement.getColumn(i).getString());
            rows << row;
        }
        return rows;
    }
};
