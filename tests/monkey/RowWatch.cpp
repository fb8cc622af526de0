#include "monkey/RowWatch.h"

#include "monkey/Explanations.h"
#include "monkey/Trail.h"

#include "core/Navigation.h"
#include "store/Connection.h"
#include "store/NameIndex.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

#include <algorithm>

namespace {

using Explanations::Change;

Change ChangeBy(int operation) {
    if (operation == SQLITE_INSERT)
        return Change::Added;
    return operation == SQLITE_DELETE ? Change::Removed : Change::Changed;
}

QLatin1String Word(Change change) {
    static constexpr const char* words[] = {"added", "changed", "removed"};
    return QLatin1String(words[int(change)]);
}

QString Front() {
    const ScreenForm* front = TheNavigation().Front();
    return front ? front->objectName() : QString();
}

} // namespace

void RowWatch::Begin() {
    if (begun_ || UserDB().state() == Connection::Closed || FoodDB().state() == Connection::Closed)
        return;
    begun_ = true;
    Begin(UserDB().Raw());
    Begin(FoodDB().Raw());
}

void RowWatch::Begin(SQLite::Database& database) {
    keys_.insert(KeysIn(database));
    sqlite3_update_hook(database.getHandle(), &RowWatch::OnRow, this);
}

RowWatch::Keys RowWatch::KeysIn(SQLite::Database& database) {
    Keys keys;
    SQLite::Statement tables(database, "SELECT name FROM sqlite_master WHERE type = 'table' AND "
                                       "name NOT LIKE 'sqlite_%' AND "
                                       "name NOT LIKE 'FOODS_Trigrams%'");
    while (tables.executeStep()) {
        const std::string table = tables.getColumn(0).getString();
        QSet<qint64>& found = keys[QString::fromStdString(table)];
        SQLite::Statement rows(database, "SELECT rowid FROM \"" + table + '"');
        while (rows.executeStep())
            found << rows.getColumn(0).getInt64();
    }
    return keys;
}

void RowWatch::OnRow(void* self, int operation, const char*, const char* table, long long key) {
    const QString name = QString::fromUtf8(table);
    if (!name.startsWith(QLatin1String(NameIndex::Table))) // the store keeps it itself
        static_cast<RowWatch*>(self)->Note(operation, name, key);
}

void RowWatch::Note(int operation, const QString& table, qint64 key) {
    ++changes_;
    const Change change = ChangeBy(operation);
    if (change == Change::Added)
        keys_[table].insert(key);
    if (change == Change::Removed)
        keys_[table].remove(key);
    const auto covers = [&](const Action& action) {
        return Explanations::Covers(action, Front(), change, table);
    };
    if (std::ranges::none_of(trail_.MayExplain(), covers))
        trail_.Report(QStringLiteral("nothing explains that row %1 of %2 was %3")
                          .arg(QString::number(key), table, Word(change)));
}

void RowWatch::CompareWith(const QString& folder) {
    if (!begun_)
        return;
    Keys found;
    for (const char* file : {"/users.mdb", "/foods.mdb"}) {
        SQLite::Database database(folder.toStdString() + file);
        found.insert(KeysIn(database));
    }
    for (const QString& table : keys_.keys())
        if (keys_[table] != found[table])
            trail_.Report("the file holds other rows of " + table + " than were written");
}
