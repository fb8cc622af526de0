#pragma once

#include "store/Field.h"

#include <QString>
#include <QVariant>

#include <memory>

class Connection;

enum class Cursor { Keyset = 1, Dynamic = 2, Static = 3 };
enum class Lock { ReadOnly = 1, Pessimistic = 2, Optimistic = 3 };

/// A result set: exactly one statement, opened, walked and closed inside one routine. Whatever its
/// cursor, its rows are read when it is opened: what happens to the table afterwards does not
/// change them.
///
/// A set opened with a lock other than ReadOnly on `SELECT * FROM table ...` can append, change and
/// delete rows; each touches exactly the current row, and only Update writes: what was set is
/// dropped by a move or a close. Values written are converted to the column's declared type (whole
/// numbers round half to even). Under every lock the statement itself only reads: one that would
/// write, ATTACH, PRAGMA, transactions and schema changes are refused, and so is anything behind
/// the first statement, before it runs.
///
/// Columns are found by name without regard to case, or by position from 0. Reading or changing
/// where there is no current row fails with 3021, an unknown column with 3265, changing rows that
/// are not those of one table with 3251.
class Recordset {
public:
    Recordset();
    Recordset(Connection& connection, const QString& source, Cursor cursor = Cursor::Static,
              Lock lock = Lock::ReadOnly);
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    void Open(Connection& connection, const QString& source, Cursor cursor = Cursor::Static,
              Lock lock = Lock::ReadOnly);
    void Close();
    bool IsOpen() const;

    int RecordCount() const;
    bool AtStart() const; ///< before the first row
    bool AtEnd() const;   ///< behind the last row; also true where there are none
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();

    int FieldCount() const;
    QString FieldName(int position) const;
    Field operator[](int position) const;
    Field operator[](const QString& name) const;

    void AddNew();
    void Set(int position, const QVariant& value);
    void Set(const QString& name, const QVariant& value);
    void Update(); ///< commits the row; generated keys can be read from it afterwards
    /// Commits; the set then stands where the row was, with no current row until a move.
    void Delete();

private:
    struct Impl;
    Impl& Opened() const;
    Field Read(int column) const;

    std::unique_ptr<Impl> impl_;
};
