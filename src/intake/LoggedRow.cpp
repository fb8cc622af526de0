#include "intake/LoggedRow.h"

#include "intake/LoggedEntries.h"
#include "runtime/Attempt.h"
#include "store/Connection.h"
#include "store/Recordset.h"

LoggedRow LoggedRow::Of(const Recordset& row) {
    LoggedRow read{row[QStringLiteral("RecID")].IsKey() ? row[QStringLiteral("RecID")].Integer()
                                                        : 0,
                   row[QStringLiteral("FoodName")].Text(),
                   row[QStringLiteral("Meal")].Text(),
                   row[QStringLiteral("UDate")].Day(),
                   row[QStringLiteral("QTY")].NumberOr(0),
                   {}};
    for (int column = 0; column < row.FieldCount(); ++column)
        read.values.push_back(row[column].Value());
    return read;
}

std::vector<LoggedRow> LoggedRow::AllOf(const LoggedEntries& entries) {
    std::vector<LoggedRow> all;
    for (Recordset rows(UserDB(), entries.Statement()); !rows.AtEnd(); rows.MoveNext())
        all.push_back(Of(rows));
    return all;
}

void LoggedRow::SetIn(Recordset& target) const {
    for (int column = 1; column < target.FieldCount(); ++column)
        Attempt([&] { target.Set(column, values[static_cast<size_t>(column)]); });
}

void LoggedRow::Restore() const {
    Recordset row(UserDB(), LoggedEntries::One(RecID).Statement(), CursorType::Keyset,
                  LockType::Optimistic);
    if (!HasKey() || row.AtEnd()) {
        row.AddNew();
        if (HasKey())
            row.Set(QStringLiteral("RecID"), RecID);
    }
    SetIn(row);
    row.Update();
}
