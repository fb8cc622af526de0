#pragma once

#include <QString>

class ListBox;
class Recordset;

/// Fills a list with a line a row, in the order of the names; each line carries the row's key.
void ListByName(ListBox& list, Recordset& rows, const QString& nameColumn,
                const QString& keyColumn);
