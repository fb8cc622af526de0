#include "store/LogSums.h"

#include "store/Connection.h"
#include "store/LogPass.h"
#include "store/LogPieceReader.h"
#include "store/ReadTransaction.h"
#include "store/StatementCache.h"
#include "store/StoreError.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <thread>

#include <sqlite3.h>

namespace {
constexpr qint64 LongRange = 400; ///< days; a longer range is worth a second thread

QString Text(QDate day) {
    return day.toString(Qt::ISODate);
}

/// The first and the last day that the log has in the range, as far as they are days.
std::vector<LogPiece> PiecesOf(SQLite::Database& database, const LogRange& range) {
    const QString rows = "FROM " + range.table + " WHERE UID=?1 AND UDate BETWEEN ?2 AND ?3)";
    const QString sql = "SELECT (SELECT min(UDate) " + rows + ", (SELECT max(UDate) " + rows;
    SQLite::Statement ends(database, sql.toStdString());
    ends.bind(1, range.user);
    ends.bind(2, Text(range.from).toStdString());
    ends.bind(3, Text(range.to).toStdString());
    ends.executeStep();
    const auto end = [&](int column, QDate otherwise) {
        const QLatin1String text(ends.getColumn(column).getText());
        const QDate day = QDate::fromString(text, Qt::ISODate);
        return day.isValid() ? day : otherwise;
    };
    return LogPieces::Of(range.from, range.to, end(0, range.from), end(1, range.to));
}

/// The file that a second connection may read at the same time: it sees the same rows only if this
/// one has no open change, and if a reader of the file keeps every writer out.
QString SharedFile(Connection& connection) {
    SQLite::Database& database = connection.Raw();
    const bool shared = std::thread::hardware_concurrency() > 1 &&
                        sqlite3_get_autocommit(database.getHandle()) != 0 &&
                        database.getFilename() == connection.Path().toStdString() &&
                        database.execAndGet("PRAGMA journal_mode").getString() == "delete";
    return shared ? connection.Path() : QString();
}

AmountSums InPieces(Connection& connection, const LogRange& range) {
    const QString file = SharedFile(connection);
    const ReadTransaction keepsWritersOut(connection);
    LogPass pass(range, PiecesOf(connection.Raw(), range));
    return pass.Run(connection.Statements().Command(LogPieceReader::SQL(range)), file);
}

AmountSums AtOnce(Connection& connection, const LogRange& range) {
    LogPass pass(range, {{Text(range.from), Text(range.to), {}}});
    return pass.Run(connection.Statements().Command(LogPieceReader::SQL(range)), {});
}
} // namespace

AmountSums LogSums::Of(Connection& connection, const LogRange& range) {
    return StoreError::Guarded(connection.Path(), [&] {
        const bool isLong = range.from.daysTo(range.to) > LongRange;
        return isLong ? InPieces(connection, range) : AtOnce(connection, range);
    });
}
