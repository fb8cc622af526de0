#include "store/NamedRows.h"

#include "store/Recordset.h"

QList<NamedKey> NamedRows::Sorted(Recordset& rows, const QString& nameColumn,
                                  const QString& keyColumn) {
    QList<NamedKey> named;
    named.reserve(rows.RecordCount());
    for (; !rows.AtEnd(); rows.MoveNext())
        if (rows[keyColumn].IsKey())
            named.append({rows[nameColumn].Text(), rows[keyColumn].Integer()});
    NameOrder::Sort(named);
    return named;
}
