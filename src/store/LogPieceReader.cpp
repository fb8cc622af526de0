#include "store/LogPieceReader.h"

#include "store/LogPieces.h"
#include "store/Prepared.h"

QString LogPieceReader::SQL(const LogRange& range) {
    return QStringLiteral("SELECT %1(?1,UDate,%2) FROM %3 "
                          "WHERE UID=?2 AND UDate BETWEEN ?3 AND ?4 AND UDate IS NOT ?5")
        .arg(QLatin1String(AmountRows::Function), range.columns.join(u','), range.table);
}

AmountRows LogPieceReader::Read(const LogPiece& piece) {
    AmountRows rows(static_cast<size_t>(range_.columns.size()));
    statement_.BindPointer(1, &rows, AmountRows::Pointer);
    statement_.Bind(2, range_.user);
    statement_.Bind(3, piece.from);
    statement_.Bind(4, piece.to);
    statement_.Bind(5, piece.next.isNull() ? QVariant() : piece.next);
    statement_.Step();
    statement_.Reset();
    return rows;
}
