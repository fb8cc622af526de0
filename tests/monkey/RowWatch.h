#pragma once

#include <QMap>
#include <QSet>
#include <QString>

namespace SQLite {
class Database;
}
class Trail;

/// A model of the rows of both files. It hears of each row that the program writes, asks for an
/// explanation, and in the end compares itself with the files.
class RowWatch {
public:
    explicit RowWatch(Trail& trail)
        : trail_(trail) {}

    void Begin();                            ///< once both files are open
    void CompareWith(const QString& folder); ///< once both are closed
    int Changes() const { return changes_; }

private:
    using Keys = QMap<QString, QSet<qint64>>; ///< of the rows, by table

    static Keys KeysIn(SQLite::Database& database);
    static void OnRow(void* self, int operation, const char*, const char* table, long long key);
    void Begin(SQLite::Database& database);
    void Note(int operation, const QString& table, qint64 key);

    Trail& trail_;
    Keys keys_;
    bool begun_ = false;
    int changes_ = 0;
};
