#pragma once

#include <QString>
#include <QTemporaryDir>

#include <functional>

namespace SQLite {
class Database;
}
class Connection;

/// What a kill would leave of a database during some work: a copy of the file and its journal
/// before each row is written, and one at the end.
class KillPoints {
public:
    KillPoints(Connection& watched, const std::function<void()>& work);

    int Count() const { return count_; } ///< rows written, and the end
    /// Visits what the next start would find, in order.
    void ForEach(const std::function<void(int point, SQLite::Database& left)>& visit) const;

private:
    static void OnRow(void* self, int, const char*, const char*, long long);
    void Copy();
    QString File(int point) const;

    QTemporaryDir copies_;
    QString path_;
    int count_ = 0;
};
