#include "intake/DayChanges.h"

#include "foods/Meals.h"
#include "foods/ScaledFood.h"
#include "intake/DayLog.h"
#include "runtime/Convert.h"
#include "store/Connection.h"
#include "store/Transaction.h"

namespace {

constexpr int LongestName = 60;

QString Shortened(const QString& name) {
    const QString line = name.simplified();
    return line.size() <= LongestName ? line : line.left(LongestName - 1).trimmed() + u'…';
}

QString Named(const std::vector<LoggedRow>& rows) {
    return rows.size() == 1 ? Shortened(rows.front().name)
                            : QString::number(rows.size()) + " foods";
}

QString MealOf(const LoggedRow& row) {
    return row.meal.isEmpty() ? QStringLiteral("no meal") : row.meal;
}

} // namespace

void DayChanges::KeepRows(const QString& done, std::vector<LoggedRow> before) {
    Report report{done, Named(before), before.front().day};
    steps_.push_back({std::move(report), std::move(before), {}});
}

void DayChanges::Add(const ScaledFood& item, const QString& meal, QDate day) {
    const qint32 key = DayLog::AddFood(item, meal, day);
    const QString name = Shortened(item.Text(QStringLiteral("FOODNAME")));
    steps_.push_back({{QStringLiteral("Removed again"), name, day}, {}, {key}});
}

void DayChanges::Remove(qint32 RecID) {
    std::vector<LoggedRow> row = LoggedRow::AllOf(LoggedEntries::One(RecID));
    DayLog::RemoveFood(RecID);
    KeepRows(QStringLiteral("Brought back"), std::move(row));
}

void DayChanges::Clear(QDate day) {
    std::vector<LoggedRow> rows = LoggedRow::AllOf(LoggedEntries::Of(day));
    DayLog::ClearFoods(day);
    if (!rows.empty())
        KeepRows(QStringLiteral("Brought back"), std::move(rows));
}

QString DayChanges::Copy(const LoggedEntries& foods, QDate to) {
    const std::vector<LoggedRow> rows = LoggedRow::AllOf(foods);
    if (rows.empty())
        return {};
    Transaction whole(UserDB());
    std::vector<qint32> keys = DayLog::CopyFoods(foods, to);
    whole.Commit();
    steps_.push_back(
        {{QStringLiteral("Took back the copy"), Named(rows), to}, {}, std::move(keys)});
    return Named(rows);
}

QString DayChanges::Move(const LoggedEntries& foods, int meal) {
    std::vector<LoggedRow> rows = LoggedRow::AllOf(foods);
    std::erase_if(rows, [](const LoggedRow& row) { return !row.HasKey(); }); // they stay
    if (rows.empty())
        return {};
    Transaction whole(UserDB());
    DayLog::MoveFoods(foods, meal);
    whole.Commit();
    QString moved = Named(rows);
    const QString done = "Moved back to " + MealOf(rows.front());
    KeepRows(done, std::move(rows));
    return moved;
}

void DayChanges::SetQuantity(qint32 RecID, double quantity) {
    std::vector<LoggedRow> row = LoggedRow::AllOf(LoggedEntries::One(RecID));
    DayLog::SetQuantity(RecID, quantity);
    const QString done = "Back to quantity " + DecimalText(row.front().quantity);
    KeepRows(done, std::move(row));
}

DayChanges::Report DayChanges::Undo() {
    const Step& step = steps_.back();
    Transaction whole(UserDB());
    for (const qint32 key : step.added)
        if (!LoggedRow::AllOf(LoggedEntries::One(key)).empty())
            DayLog::RemoveFood(key);
    for (const LoggedRow& row : step.before)
        row.Restore();
    whole.Commit();
    Report report = step.report;
    steps_.pop_back();
    return report;
}
