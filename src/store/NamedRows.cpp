#include "store/NamedRows.h"

#include "store/RowReader.h"

QList<NamedKey> NamedRows::Sorted(Connection& connection, const QString& source) {
    QList<NamedKey> named;
    for (RowReader rows(connection, source); rows.Next();)
        if (const std::optional<qint32> key = rows.Key(1))
            named.append({rows.Name(0), *key});
    NameOrder::Sort(named);
    return named;
}
