#include "records/recipefiles/RecipeImport.h"

#include "foods/Quantity.h"
#include "model/Nutrients.h"
#include "records/RecordsChange.h"
#include "records/RecordsReading.h"
#include "records/recipefiles/IngredientLabel.h"
#include "records/recipefiles/RecipeFiles.h"
#include "records/recipefiles/RecipeStore.h"
#include "runtime/RuntimeError.h"

#include <algorithm>

namespace {
using namespace RecipeImport;

constexpr qsizetype MostCandidates = 5; ///< that a person can choose from

FinishedIngredient Finished(const ScaledFood& food) {
    FinishedIngredient ingredient{food.Item(QStringLiteral("FOODNAME")),
                                  food.Item(QStringLiteral("SERVING")),
                                  food.Item(QStringLiteral("QTY")),
                                  {}};
    for (int position = 1; position <= NutrientCount; ++position)
        ingredient.amounts << food.Item(position);
    return ingredient;
}

/// What the person chose for a line; null: nothing was said.
const IngredientChoice* ChoiceFor(const Options& options, int recipe, int line) {
    const auto choice = std::ranges::find_if(options.choices, [&](const IngredientChoice& one) {
        return one.recipe == recipe && one.line == line;
    });
    return choice == options.choices.end() ? nullptr : &*choice;
}

void RequireUsable(const FoodMatch& food) {
    if (const QString refusal = Quantity::LogRefusal(*food.quantity); !refusal.isEmpty())
        throw RuntimeError(ErrorNumber::TypeMismatch, refusal + u'.');
    if (!FoodMatch::Exists(food.key))
        throw RuntimeError(ErrorNumber::NoCurrentRecord,
                           QStringLiteral("There is no food %1.").arg(food.key));
}

/// One recipe of a file on its way into the records.
class Arrival {
public:
    Arrival(RecipeDraft draft, int number, const Options& options)
        : draft_(std::move(draft))
        , number_(number)
        , options_(options) {}

    /// Matches each line of text; gives the recipe with what is taken.
    Imported Decide() {
        Imported imported{draft_.Name(), {}, draft_.kcal};
        QList<IngredientLine> taken;
        QStringList left;
        for (int i = 0; i < draft_.ingredients.size(); ++i) {
            IngredientLine line = draft_.ingredients[i];
            if (!line.finished)
                imported.proposals << Propose(line, i + 1);
            if (line.finished)
                taken << line;
            else
                left << line.text;
        }
        draft_.ingredients = taken;
        KeepAsText(left);
        imported.kcal = draft_.InServing(Nutrient::Calories);
        imported.isThere = RecipeStore::Has(draft_);
        return imported;
    }

    const RecipeDraft& Recipe() const { return draft_; }

private:
    /// Finishes the line if its food is taken.
    Proposal Propose(IngredientLine& line, int place) const {
        const IngredientChoice* choice = ChoiceFor(options_, number_, place);
        Proposal proposal{place, line.text, line.isHeading};
        const bool isChosen = choice && choice->food;
        if (isChosen) {
            RequireUsable(*choice->food);
            proposal.match = choice->food;
        } else if (!line.isHeading && !options_.keepText) {
            proposal.match = FoodMatch::Of(line.text);
        }
        if (!proposal.match || !proposal.match->quantity)
            return proposal;
        const ScaledFood food = proposal.match->Scaled();
        proposal.match->name = food.Text(QStringLiteral("FOODNAME"));
        proposal.kcal = food.Amount(QStringLiteral("Calories"));
        proposal.taken = choice ? choice->food.has_value() : options_.accept;
        if (proposal.taken) {
            line.finished = Finished(food);
            line.text = IngredientLabel(*line.finished);
        }
        return proposal;
    }

    void KeepAsText(const QStringList& left) {
        if (left.isEmpty() && draft_.remarks.isEmpty())
            return;
        QStringList parts;
        if (!left.isEmpty())
            parts << QString(u"Ingredients without amounts:\n- " +
                             left.join(QLatin1String("\n- ")));
        parts << draft_.values[RecipeField::Instructions].toString();
        parts << draft_.remarks.join(u'\n');
        parts.removeAll(QString());
        draft_.values[RecipeField::Instructions] =
            AllowedInRecipe(parts.join(QLatin1String("\n\n")));
    }

    RecipeDraft draft_;
    int number_;
    const Options& options_;
};

/// Nothing was said about lines of text, and there are some.
bool IsUndecided(const Options& options, const QList<RecipeDraft>& drafts) {
    const bool said = options.accept || options.keepText || !options.choices.isEmpty();
    return !said && !std::ranges::all_of(drafts, &RecipeDraft::IsFinished);
}

/// Two equal recipes of the same files are one.
Result Bring(const QList<RecipeDraft>& drafts, const Options& options, bool write) {
    Result result;
    for (int i = 0; i < drafts.size(); ++i) {
        Arrival arrival(drafts[i], i + 1, options);
        result.recipes << arrival.Decide();
        if (result.recipes.last().isThere)
            continue;
        ++result.added;
        if (write)
            RecipeStore::Append(arrival.Recipe());
    }
    return result;
}

void RequireLines(const QList<RecipeDraft>& drafts, const Options& options) {
    for (const IngredientChoice& choice : options.choices)
        if (choice.recipe < 1 || choice.recipe > drafts.size() || choice.line < 1 ||
            choice.line > drafts[choice.recipe - 1].ingredients.size())
            throw RuntimeError(ErrorNumber::NoSuchPosition,
                               QStringLiteral("There is no line %1.%2 in the files.")
                                   .arg(choice.recipe)
                                   .arg(choice.line));
}

QList<RecipeDraft> Drafts(const Options& options) {
    QList<RecipeDraft> drafts;
    for (const QString& file : options.files)
        drafts << RecipeFiles::Read(file);
    RequireLines(drafts, options);
    return drafts;
}

QList<Candidate> Candidates(const QString& line) {
    QList<Candidate> candidates;
    for (const FoodMatch& match : FoodMatch::Best(line, MostCandidates)) {
        if (!match.quantity)
            continue;
        const ScaledFood food = match.Scaled();
        candidates.append(
            {match, IngredientLabel(Finished(food)), food.Amount(QStringLiteral("Calories"))});
    }
    return candidates;
}

void AddQuestions(const RecipeDraft& draft, int number, QList<Question>& questions) {
    for (int i = 0; i < draft.ingredients.size(); ++i) {
        const IngredientLine& line = draft.ingredients[i];
        if (!line.finished && !line.isHeading)
            questions.append({draft.Name(), number, i + 1, line.text, Candidates(line.text)});
    }
}
} // namespace

QList<RecipeImport::Question> RecipeImport::Questions(const RecordsFolder& records,
                                                      const Options& options) {
    const QList<RecipeDraft> drafts = Drafts(options);
    QList<Question> questions;
    if (!IsUndecided(options, drafts))
        return questions;
    const RecordsReading reading(records);
    for (int i = 0; i < drafts.size(); ++i)
        AddQuestions(drafts[i], i + 1, questions);
    return questions;
}

RecipeImport::Result RecipeImport::Run(const RecordsFolder& records, const Options& options) {
    const QList<RecipeDraft> drafts = Drafts(options);
    const bool undecided = IsUndecided(options, drafts);
    if (options.dryRun || undecided) {
        const RecordsReading reading(records);
        Result result = Bring(drafts, options, false);
        result.undecided = undecided;
        return result;
    }
    RecordsChange change(records, QStringLiteral("recipes import"));
    const Result result = Bring(drafts, options, true);
    change.Commit();
    return result;
}
