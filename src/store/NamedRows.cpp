#include "store/NamedRows.h"

#include "store/Recordset.h"

QList<NamedKey> NamedRows::Sorted(Recordset& rows) {
    QList<NamedKey> named;
    named.reserve(rows.RecordCount());
    for (; !rows.AtEnd(); rows.MoveNext())
        if (const Field key = rows[1]; key.IsKey())
            named.append({rows[0].Text(), key.Integer()});
    NameOrder::Sort(named);
    return named;
}
