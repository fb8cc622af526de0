#include "commands/Command.h"
#include "commands/Commands.h"
#include "commands/FoundFoods.h"
#include "commands/Session.h"
#include "foods/FoodSearch.h"
#include "foods/SearchTerms.h"
#include "records/RecordsReading.h"
#include "store/Schema.h"

#include <algorithm>

namespace {
constexpr FoodSearch::Sources Everywhere{.recipes = true, .custom = true, .stock = true};

struct Wanted {
    QStringList words;
    int limit = 3 * FoodSearch::MostOfASource;
};

bool IsCut(const FoodList& found) {
    const auto recipe = [](const Food& food) { return food.isRecipe; };
    const auto own = [](const Food& food) {
        return !food.isRecipe && food.ID > Schema::LastStockFood;
    };
    const auto recipes = std::ranges::count_if(found, recipe);
    const auto owned = std::ranges::count_if(found, own);
    return std::max({recipes, owned, found.Count() - recipes - owned}) == FoodSearch::MostOfASource;
}

/// Nobody can see in the list itself that there is more.
void TellIfCut(const Session& session, const FoodList& found) {
    if (IsCut(found))
        session.Tell(QStringLiteral("There may be more: a search gives at most %1 recipes, %1 own "
                                    "foods and %1 standard foods.")
                         .arg(FoodSearch::MostOfASource));
}

int Search(const Session& session, const Wanted& wanted) {
    const QString words = wanted.words.join(u' ');
    if (const QString refusal = SearchTerms::Refusal(words); !refusal.isEmpty())
        return session.Refuse(refusal);
    const RecordsReading records(session.Records());
    const FoodList found = FoodSearch::Find(SearchTerms::Quoted(words), Everywhere);
    TellIfCut(session, found);
    if (found.Count() == 0)
        session.Tell(FoodSearch::NoMatch());
    FoundFoods::Print(session, found, wanted.limit);
    return found.Count() == 0 ? Found : Done;
}

/// Empty: the limit can be used.
std::string LimitProblem(const std::string& text) {
    bool isNumber = false;
    const int number = QString::fromStdString(text).toInt(&isNumber);
    return isNumber && number > 0 ? "" : '"' + text + "\" is not a number above 0.";
}
} // namespace

void Commands::AddSearch(const Command& program, Session& session) {
    const Command command = program.Add("search", "Finds foods and recipes by words");
    const auto wanted = std::make_shared<Wanted>();
    command.Take("WORDS", wanted->words, "Words that the name must contain").Required();
    command.Take("--limit", wanted->limit, "Print at most so many")
        .Value("NUMBER")
        .Check(LimitProblem);
    command.Footer("Example: halvane-data search rye bread");
    command.Does([&session, wanted] { return Search(session, *wanted); });
}
