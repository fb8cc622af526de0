#include "foods/Meals.h"

#include "runtime/Round.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "runtime/Val.h"

#include <algorithm>

QString Meals::NameOf(int meal) {
    return QLatin1String(Names[static_cast<size_t>(meal)]);
}

std::optional<int> Meals::Find(QStringView name) {
    const auto isMeal = [name](const char* meal) {
        return name.compare(QLatin1String(meal), Qt::CaseInsensitive) == 0;
    };
    const auto* const found = std::ranges::find_if(Names, isMeal);
    return found == Names.end() ? std::nullopt : std::optional(int(found - Names.begin()));
}

std::optional<int> Meals::LastTicked() {
    const QString kept = GetRegValue(Settings::Meal);
    if (kept.isEmpty())
        return {};
    const double meal = Val(kept);
    return meal > 0 && meal < Names.size() - 0.5 ? Round(meal) : 0;
}
