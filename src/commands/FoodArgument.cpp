#include "commands/FoodArgument.h"

#include "commands/Command.h"
#include "commands/FoundFoods.h"
#include "commands/Session.h"
#include "foods/FoodSearch.h"
#include "foods/SearchTerms.h"
#include "records/KeyText.h"
#include "runtime/RuntimeError.h"

#include <QRegularExpression>

#include <algorithm>

namespace {
constexpr int MostListed = 20; ///< of those that match: `search` lists them all

/// A key as a person writes it. Without a kind it is one of a food.
struct WrittenKey {
    QString kind; ///< in small letters; may be empty
    QString number;
};

std::optional<WrittenKey> KeyIn(const QString& text) {
    static const QRegularExpression form(QStringLiteral("^(?:(%1|%2|%3):)?(\\d+)$")
                                             .arg(KeyText::Food, KeyText::Recipe, KeyText::Entry),
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text);
    return match.hasMatch()
               ? std::optional(WrittenKey{match.captured(1).toLower(), match.captured(2)})
               : std::nullopt;
}

Food Keyed(bool isRecipe, const QString& key) {
    bool fits = false;
    const qint32 number = key.toInt(&fits);
    const auto food = fits ? FoodSearch::WithKey(number, isRecipe) : std::nullopt;
    if (!food)
        throw RuntimeError(ErrorNumber::NoCurrentRecord,
                           u"There is no " + (isRecipe ? KeyText::Recipe : KeyText::Food) +
                               u" with the key " + key + u'.');
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

void FoodArgument::AddTo(const Command& command) {
    command
        .Take("FOOD", words_,
              "A key (food:16096, recipe:3, or 16096 for a food), or words of the name")
        .Required();
    AddRecipeFlag(command);
}

void FoodArgument::AddRecipeFlag(const Command& command) {
    command.Flag("--recipe", recipe_, "FOOD is a recipe");
}

void FoodArgument::AddOneTo(const Command& command) {
    const auto take = [this](const std::string& text) { words_ = {QString::fromStdString(text)}; };
    command
        .Take("FOOD", take,
              "A key (food:16096, recipe:3, log:5 for an entry, or 16096 for a food), or words of "
              "the name in one argument")
        .Required();
    AddRecipeFlag(command);
}

QString FoodArgument::Text() const {
    return words_.join(u' ');
}

QString FoodArgument::Refusal() const {
    return SearchTerms::Refusal(Text());
}

std::optional<qint32> FoodArgument::LogKey() const {
    const auto key = KeyIn(Text());
    bool fits = false;
    const qint32 number = key && key->kind == KeyText::Entry ? key->number.toInt(&fits) : 0;
    return fits ? std::optional(number) : std::nullopt;
}

FoodList FoodArgument::Search() const {
    return FoodSearch::Find(SearchTerms::Quoted(Text()),
                            {.recipes = true, .custom = !recipe_, .stock = !recipe_});
}

std::optional<Food> FoodArgument::Choose(const Session& session) const {
    if (const auto key = KeyIn(Text()); key && key->kind != KeyText::Entry)
        return Keyed(recipe_ || key->kind == KeyText::Recipe, key->number);
    const FoodList found = Search();
    if (const auto food = OnlyOne(found, Text()))
        return food;
    session.Tell(found.Count() == 0 ? FoodSearch::NoMatch()
                                    : QStringLiteral("Several match. Name one by its key, "
                                                     "or add words of its name."));
    FoundFoods::Print(session, found, MostListed);
    return {};
}
