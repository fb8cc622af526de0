#include "commands/FoodArgument.h"

#include "commands/FoundFoods.h"
#include "commands/Session.h"
#include "foods/FoodSearch.h"
#include "foods/SearchTerms.h"
#include "runtime/RuntimeError.h"

#include <QRegularExpression>

#include <CLI/CLI.hpp>

#include <algorithm>

namespace {
QString KindOf(const QString& written, bool recipe) {
    return recipe || written.compare(u"recipe", Qt::CaseInsensitive) == 0 ? QStringLiteral("recipe")
                                                                          : QStringLiteral("food");
}

Food Keyed(const QString& kind, const QString& key) {
    bool fits = false;
    const qint32 number = key.toInt(&fits);
    const auto food = fits ? FoodSearch::WithKey(number, kind == u"recipe") : std::nullopt;
    if (!food)
        throw RuntimeError(ErrorNumber::NoCurrentRecord,
                           u"There is no " + kind + u" with the key " + key + u'.');
    return *food;
}

std::optional<Food> OnlyOne(const FoodList& foods, const QString& name) {
    if (foods.Count() == 1)
        return foods.Item(1);
    const auto named = [&name](const Food& food) {
        return food.FoodName.compare(name, Qt::CaseInsensitive) == 0;
    };
    if (std::ranges::count_if(foods, named) != 1)
        return {};
    return *std::ranges::find_if(foods, named);
}
} // namespace

void FoodArgument::AddTo(CLI::App& command) {
    command
        .add_option("FOOD", words_,
                    "A key (food:16096, recipe:3, or 16096 for a food), or words of the name")
        ->required();
    AddRecipeFlag(command);
}

void FoodArgument::AddRecipeFlag(CLI::App& command) {
    command.add_flag("--recipe", recipe_, "FOOD is a recipe");
}

void FoodArgument::AddOneTo(CLI::App& command) {
    const auto take = [this](const std::string& text) { words_ = {text}; };
    command
        .add_option_function<std::string>(
            "FOOD", take,
            "A key (food:16096, recipe:3, log:5 for an entry, or 16096 for a food), or words of "
            "the name in one argument")
        ->required();
    AddRecipeFlag(command);
}

QString FoodArgument::Text() const {
    return QString::fromStdString(CLI::detail::join(words_, " "));
}

QString FoodArgument::Refusal() const {
    return SearchTerms::Refusal(Text());
}

std::optional<qint32> FoodArgument::LogKey() const {
    const QString text = Text();
    bool fits = false;
    const qint32 key = QStringView(text).mid(4).toInt(&fits);
    return fits && text.startsWith(u"log:", Qt::CaseInsensitive) ? std::optional(key)
                                                                 : std::nullopt;
}

FoodList FoodArgument::Search() const {
    return FoodSearch::Find(SearchTerms::Quoted(Text()),
                            {.recipes = true, .custom = !recipe_, .stock = !recipe_});
}

std::optional<Food> FoodArgument::Choose(const Session& session) const {
    static const QRegularExpression form(QStringLiteral("^(?:(food|recipe):)?(\\d+)$"),
                                         QRegularExpression::CaseInsensitiveOption);
    if (const auto key = form.match(Text()); key.hasMatch())
        return Keyed(KindOf(key.captured(1), recipe_), key.captured(2));
    const FoodList found = Search();
    if (const auto food = OnlyOne(found, Text()))
        return food;
    session.Tell(found.Count() == 0 ? FoodSearch::NoMatch()
                                    : QStringLiteral("Several match. Name one by its key."));
    FoundFoods::Print(session, found);
    return {};
}
