#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>

class Connection;

/// What an acknowledged number promises, for each kind of action: rows that hold it must be there,
/// or be gone. UserDB() and FoodDB() are open on the files.
class Promises {
public:
    /// Takes down lines of a kind and a number.
    void TakeDown(const QByteArray& acknowledged);
    int Next() const { return next_; } ///< a number that no row holds yet

    /// A line for each promise that is broken, and for each row that is half written.
    QByteArrayList Broken() const;
    /// How many of each kind were acknowledged, in all folders so far.
    static QByteArray Totals();

private:
    QHash<QByteArray, QSet<int>> numbers_; ///< by kind
    int next_ = 1;
};
