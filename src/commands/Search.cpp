#include "commands/Commands.h"
#include "commands/Session.h"
#include "foods/FoodSearch.h"
#include "foods/SearchTerms.h"
#include "records/RecordsReading.h"

#include <QJsonArray>
#include <QJsonObject>

#include <CLI/CLI.hpp>

namespace {
constexpr FoodSearch::Sources Everywhere{.recipes = true, .custom = true, .stock = true};

QJsonObject Facts(const Food& food) {
    return {{"name", food.FoodName},
            {"kind", QLatin1String(food.isRecipe ? "recipe" : "food")},
            {"key", food.ID},
            {"servingA", QJsonValue::fromVariant(food.ServA)},
            {"servingB", QJsonValue::fromVariant(food.ServB)}};
}

QString Line(const Food& food) {
    const QString key = (food.isRecipe ? u"recipe " : u"food ") + QString::number(food.ID);
    return key.leftJustified(14) + food.FoodName + QLatin1String(", ") + food.ServA.toString();
}

int Search(const Session& session, const std::string& words) {
    const RecordsReading records(session.Records());
    const FoodList found = FoodSearch::Find(SearchTerms(QString::fromStdString(words)), Everywhere);
    QJsonArray all;
    for (const Food& food : found)
        session.json ? all.append(Facts(food)) : session.Print(Line(food));
    if (session.json)
        session.Print(QJsonObject{{"found", all}});
    return found.Count() == 0 ? Found : Done;
}
} // namespace

void Commands::AddSearch(CLI::App& program, Session& session) {
    CLI::App* command = program.add_subcommand("search", "Finds foods and recipes by words");
    const auto words = std::make_shared<std::vector<std::string>>();
    command->add_option("WORDS", *words, "Words that all stand in the name")->required();
    command->footer("Example: halvane-data search rye bread");
    command->callback([&session, words] {
        session.Do([&session, words] { return Search(session, CLI::detail::join(*words, " ")); });
    });
}
