#include "commands/MealOption.h"

#include "commands/UsageError.h"

#include "foods/Meals.h"

#include <algorithm>

CommandOption MealOption::Add(const Command& command, const std::string& name, int& meal,
                              const std::string& help) {
    const auto read = [name, &meal](const std::string& text) {
        const auto begins = [beginning = QString::fromStdString(text)](const char* one) {
            return QLatin1String(one).startsWith(beginning, Qt::CaseInsensitive);
        };
        const auto* const found = std::ranges::find_if(Meals::Names, begins);
        if (text.empty() || found == Meals::Names.end())
            throw UsageError(
                name, '"' + text + "\" is not a meal. Write Breakfast, Lunch, Dinner or Snacks.");
        meal = int(found - Meals::Names.begin());
    };
    return command.Take(name, read, help).Value("MEAL");
}
