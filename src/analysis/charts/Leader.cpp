#include "analysis/charts/Leader.h"

#include <QFontMetricsF>

#include <algorithm>

namespace {

/// A longer value begins left of the column.
const QString UsualValue = QStringLiteral("88,888 kcal");

qsizetype LeaderLength(const QString& caption) {
    const auto isPoint = [](QChar c) { return c == u'.'; };
    return std::find_if_not(caption.cbegin(), caption.cend(), isPoint) - caption.cbegin();
}

} // namespace

QString Leader::Fitting(const QString& caption, const QFont& font, int space) {
    const qsizetype leader = LeaderLength(caption);
    const QFontMetricsF metrics(font);
    const double value = metrics.horizontalAdvance(caption.mid(leader));
    const double room = std::max(value, metrics.horizontalAdvance(UsualValue));
    const auto points = qsizetype((space - room) / metrics.horizontalAdvance(u'.'));
    return caption.mid(leader - std::clamp<qsizetype>(points, 0, leader));
}
