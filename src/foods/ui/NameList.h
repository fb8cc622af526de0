#pragma once

#include "runtime/NameOrder.h"

class ListBox;
class Recordset;

/// Fills a list with a line for each name, in the order of the names. Each line carries its key.
void ListByName(ListBox& list, QList<NamedKey> names);
void ListByName(ListBox& list, Recordset& rows, const QString& nameColumn,
                const QString& keyColumn);
