#include "foods/ui/NameList.h"

#include "runtime/NameOrder.h"
#include "store/Recordset.h"
#include "toolkit/ListBox.h"

void ListByName(ListBox& list, Recordset& rows, const QString& nameColumn,
                const QString& keyColumn) {
    QList<NamedKey> lines;
    lines.reserve(rows.RecordCount());
    for (; !rows.AtEnd(); rows.MoveNext())
        lines.append({rows[nameColumn].Text(), rows[keyColumn].Integer()});
    NameOrder::Sort(lines);
    list.Clear();
    for (const NamedKey& line : std::as_const(lines))
        list.AddItem(line.name, line.key);
}
