#pragma once

#include "store/AmountSums.h"

#include <QDate>
#include <QStringList>

class Connection;

/// Which amounts of a log are summed. Its table has the columns UID and UDate, and an index on
/// both.
struct LogRange {
    QString table;
    QStringList columns; ///< of the type REAL
    int user;
    QDate from, to; ///< both included
};

/// Sums the columns over the rows of a range as SUM does, and counts its days, in one pass. If
/// possible, a second thread with its own connection reads a part of a long log. The additions stay
/// in the order of the rows, so the sums do not depend on it.
namespace LogSums {
AmountSums Of(Connection& connection, const LogRange& range);
}
