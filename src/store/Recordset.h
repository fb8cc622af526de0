#pragma once

#include "store/Field.h"

#include <QString>
#include <QVariant>

#include <memory>

class Connection;

enum class CursorType { Keyset = 1, Dynamic = 2, Static = 3 };
enum class LockType { ReadOnly = 1, Pessimistic = 2, Optimistic = 3 };

/// A result set of exactly one statement. The routine that opens it uses and closes it. All rows
/// are read on opening, whatever the cursor type: later changes of the table do not appear.
///
/// With a lock other than ReadOnly, a set on `SELECT * FROM table ...` can append, change and
/// delete rows. Each change affects only the current row. Only Update writes; a move or a close
/// drops what was set. Values are converted to the column's declared type (whole numbers round half
/// to even). The statement itself may only read: writes, ATTACH, PRAGMA, transactions, schema
/// changes and a second statement are refused before anything runs.
///
/// Columns are found by name, whatever the case, or by position from 0. Errors: no current row
/// 3021, unknown column 3265, a change of rows that are not from one table 3251.
class Recordset {
public:
    Recordset();
    Recordset(Connection& connection, const QString& source, CursorType cursor = CursorType::Static,
              LockType lock = LockType::ReadOnly);
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    void Open(Connection& connection, const QString& source, CursorType cursor = CursorType::Static,
              LockType lock = LockType::ReadOnly);
    void Close();
    bool IsOpen() const;

    int RecordCount() const;
    bool AtStart() const; ///< before the first row
    bool AtEnd() const;   ///< behind the last row, or there are no rows
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
    void Update(); ///< commits the row; its generated keys can then be read
    /// Commits. Afterwards there is no current row until a move.
    void Delete();

private:
    struct Impl;
    Impl& Opened() const;
    Field Read(int column) const;

    std::unique_ptr<Impl> impl_;
};
