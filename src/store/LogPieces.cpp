#include "store/LogPieces.h"

#include <algorithm>

namespace {
constexpr qint64 LeastDays = 30;
constexpr qint64 MostPieces = 1024;

QString Text(QDate day) {
    return day.toString(Qt::ISODate);
}
} // namespace

std::vector<LogPiece> LogPieces::Of(QDate from, QDate to, QDate firstLogged, QDate lastLogged) {
    const QDate first = std::max(from, firstLogged);
    const qint64 days = first.daysTo(std::min(to, lastLogged)) + 1;
    const qint64 count = std::clamp<qint64>(days / LeastDays, 1, MostPieces);
    std::vector<LogPiece> pieces{{Text(from), Text(to), {}}};
    for (qint64 i = 1; i < count; ++i) {
        const QString cut = Text(first.addDays(days * i / count));
        pieces.back().to = pieces.back().next = cut;
        pieces.push_back({cut, Text(to), {}});
    }
    return pieces;
}
