#include "records/peers/MealNames.h"

#include "foods/Meals.h"
#include "records/text/CsvHeader.h"

namespace {
enum Meal { Breakfast, Lunch, Dinner, Snacks };

struct Named {
    const char* name;
    Meal meal;
};
constexpr Named Known[] = {
    {"breakfast", Breakfast}, {"lunch", Lunch},  {"dinner", Dinner},
    {"supper", Dinner},       {"snack", Snacks}, {"snacks", Snacks},
};

std::optional<int> MealNamed(const QString& name, const PeerChoices& choices) {
    const QString key = CsvHeader::Key(name);
    if (const auto chosen = choices.meals.constFind(key); chosen != choices.meals.cend())
        return *chosen;
    for (const auto& [known, meal] : Known)
        if (key == QLatin1String(known))
            return meal;
    return std::nullopt;
}

bool SaysSomething(const QString& name) {
    return !name.isEmpty() && CsvHeader::Key(name) != QLatin1String("uncategorized");
}

QString FallBackRemark(const QString& name) {
    return name.isEmpty() ? QStringLiteral("Entries without a meal were put under Snacks. "
                                           "--meal \"=Dinner\" puts them elsewhere.")
                          : "The meal \"" + name + "\" was put under Snacks. --meal \"" + name +
                                "=Dinner\" puts it elsewhere.";
}
} // namespace

void MealNames::Place(ImportedEntry& entry, const PeerChoices& choices, Imported& into) {
    const auto meal = MealNamed(entry.meal, choices);
    if (!meal)
        into.Remark(FallBackRemark(entry.meal));
    if (!meal && SaysSomething(entry.meal))
        entry.food.serving += u" [" + entry.meal + u']';
    entry.meal = QLatin1String(Meals::Names[static_cast<size_t>(meal.value_or(Snacks))]);
}
