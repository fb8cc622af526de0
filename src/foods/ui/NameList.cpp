#include "foods/ui/NameList.h"

#include "store/Recordset.h"
#include "toolkit/ListBox.h"

void ListByName(ListBox& list, Recordset& rows, const QString& nameColumn,
                const QString& keyColumn) {
    QList<NamedKey> lines;
    lines.reserve(rows.RecordCount());
    for (; !rows.AtEnd(); rows.MoveNext())
        if (rows[keyColumn].IsKey())
            lines.append({rows[nameColumn].Text(), rows[keyColumn].Integer()});
    ListByName(list, std::move(lines));
}

void ListByName(ListBox& list, QList<NamedKey> names) {
    NameOrder::Sort(names);
    list.Clear();
    for (const NamedKey& line : std::as_const(names))
        list.AddItem(line.name, line.key);
}
