#include "foods/Meals.h"

#include "runtime/Round.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "runtime/Val.h"

QString Meals::NameOf(int meal) {
    return QLatin1String(Names[static_cast<size_t>(meal)]);
}

std::optional<int> Meals::LastTicked() {
    const QString kept = GetRegValue(Settings::Meal);
    if (kept.isEmpty())
        return {};
    const double meal = Val(kept);
    return meal > 0 && meal < Names.size() - 0.5 ? Round(meal) : 0;
}
