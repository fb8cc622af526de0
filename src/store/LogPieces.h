#pragma once

#include <QDate>
#include <QString>

#include <vector>

/// A piece of a range of days, as texts. Every text that sorts between the first and the last day
/// of the range is in exactly one piece, even if it is no day.
struct LogPiece {
    QString from, to;
    QString next; ///< where the next piece begins: not in this one; null if it is the last
    bool operator==(const LogPiece&) const = default;
};

namespace LogPieces {
/// Pieces of nearly equal length in their order. The cuts are between the first and the last day
/// that the log has in the range.
std::vector<LogPiece> Of(QDate from, QDate to, QDate firstLogged, QDate lastLogged);
} // namespace LogPieces
