#include "records/SnapshotRetention.h"

#include <algorithm>

namespace {
/// A span of time: the days that have the same name for it are in the same span.
struct Span {
    int kept;
    QDate (*firstDay)(QDate day);
};
constexpr Span Spans[] = {
    {SnapshotRetention::Days, [](QDate day) { return day; }},
    {SnapshotRetention::Weeks, [](QDate day) { return day.addDays(1 - day.dayOfWeek()); }},
    {SnapshotRetention::Months, [](QDate day) { return QDate(day.year(), day.month(), 1); }},
};
} // namespace

QSet<QDate> SnapshotRetention::Kept(QList<QDate> days) {
    std::ranges::sort(days, std::greater());
    QSet<QDate> kept;
    for (const Span& span : Spans) {
        QSet<QDate> seen;
        for (const QDate day : std::as_const(days)) {
            if (seen.size() == span.kept)
                break;
            if (!seen.contains(span.firstDay(day)))
                kept << day;
            seen << span.firstDay(day);
        }
    }
    return kept;
}
