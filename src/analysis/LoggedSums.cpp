#include "analysis/LoggedSums.h"

#include "analysis/LoggedDays.h"
#include "analysis/LoggedPeriod.h"
#include "model/User.h"
#include "runtime/Dates.h"
#include "store/Connection.h"
#include "store/Recordset.h"

namespace {

using enum Nutrient;
constexpr Nutrient EnergyFields[] = {Calories, TotalFat, Protein, Carbs};

QString Uid() {
    return QString::number(User::Current().UID);
}

const QString& AllSumsSQL() {
    static const QString sums =
        NutrientSumSQL(QStringLiteral("USER_FOODS")) + " FROM USER_FOODS " + " WHERE UID=";
    return sums;
}

std::optional<Nuts> Sums(const QString& statement, std::span<const Nutrient> nutrients) {
    const Recordset row(UserDB(), statement);
    if (row[QStringLiteral("Calories")].IsNull())
        return std::nullopt;
    Nuts sums;
    for (const Nutrient id : nutrients)
        sums.Set(id, row[QLatin1String(Info(id).logColumn)].NumberOr(0));
    return sums;
}

} // namespace

std::optional<Nuts> LoggedSums::OfDay(QDate day) {
    return Sums(AllSumsSQL() + Uid() + " AND UDate = #" + Dates::ShortText(day) + "#",
                CanonicalOrder());
}

std::optional<Nuts> LoggedSums::OfPeriod(const Period& period) {
    return LoggedPeriod(period).Sums();
}

std::optional<Nuts> LoggedSums::AverageEnergy(const Period& period) {
    const std::optional<Nuts> energy =
        Sums("SELECT Sum(USER_FOODS.Calories) AS [Calories], "
             "Sum(USER_FOODS.Protein) AS [Protein], Sum(USER_FOODS.TotalFat) AS [TotalFat],"
             "Sum(USER_FOODS.carbs) AS [carbs] FROM USER_FOODS "
             " WHERE UID=" +
                 Uid() + " AND " + period.Condition(),
             EnergyFields);
    return energy ? AverageEnergy(*energy, LoggedDays::CountWithFood(period)) : std::nullopt;
}

std::optional<Nuts> LoggedSums::AverageEnergy(const Nuts& sums, int days) {
    Nuts energy;
    for (const Nutrient id : EnergyFields)
        energy.Set(id, sums[id] / days);
    return energy.Calories() < 1 ? std::nullopt : std::optional(energy);
}
