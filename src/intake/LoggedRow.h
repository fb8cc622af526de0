#pragma once

#include <QDate>
#include <QString>
#include <QVariant>

#include <vector>

class LoggedEntries;
class Recordset;

/// A row of the log as it was when it was read, so that it can be copied or brought back.
struct LoggedRow {
    qint32 RecID = 0; ///< 0 if another tool wrote a key that is too large for ours
    QString name;
    QString meal;
    QDate day;
    double quantity = 0;          ///< 0 if the store holds none
    std::vector<QVariant> values; ///< of all columns; the first is the key

    bool HasKey() const { return values.front() == QVariant(RecID); }

    static LoggedRow Of(const Recordset& row); ///< its current row
    static std::vector<LoggedRow> AllOf(const LoggedEntries& entries);

    /// Sets all columns but the key in the current or the new row of `target`. A value of another
    /// tool that does not fit the type of its column is left out.
    void SetIn(Recordset& target) const;
    /// Gives the row in the store these values again. A row that is gone comes back under its key.
    void Restore() const;
};
