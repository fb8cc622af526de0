#include "records/recipefiles/RecipeDraft.h"

#include "records/StoredAmounts.h"

#include <algorithm>

namespace {
constexpr int NamePosition = NutrientCount + 1;
constexpr int ServingPosition = NutrientCount + 2;
constexpr int QuantityPosition = NutrientCount + 4;

void FillIn(QVariant& value, const QVariant& otherwise) {
    if (value.toString().isEmpty())
        value = otherwise;
}
} // namespace

QString AllowedInRecipe(const QString& text) {
    QString allowed = text;
    return allowed.replace(u'~', u'-').replace(u'^', u'-').replace(u'|', u'/').remove(QChar(0));
}

/// The key of the recipe stands before the quantity; whoever writes the row knows it.
QVariantList FinishedIngredient::StoredValues() const {
    return amounts + QVariantList{name, serving, QVariant(), quantity};
}

FinishedIngredient FinishedIngredient::OfRow(const QVariantList& row) {
    return {row[NamePosition], row[ServingPosition], row[QuantityPosition],
            row.mid(1, NutrientCount)};
}

bool RecipeDraft::IsFinished() const {
    return std::ranges::all_of(
        ingredients, [](const IngredientLine& line) { return line.finished.has_value(); });
}

double RecipeDraft::InServing(Nutrient id) const {
    const qsizetype place = StoredAmounts::PlaceOf(id);
    double total = 0;
    for (const IngredientLine& line : ingredients)
        total += line.finished->amounts[place].toDouble();
    const double yield = values[RecipeField::Yield].toDouble();
    return total / (yield > 0 ? yield : 1);
}

void Complete(RecipeDraft& draft) {
    if (draft.isOwn)
        return;
    FillIn(draft.values[RecipeField::Name], QStringLiteral("Recipe without a name"));
    FillIn(draft.values[RecipeField::Yield], 1.0);
    FillIn(draft.values[RecipeField::Serving], QStringLiteral("1 serving"));
    for (const RecipeField field :
         {RecipeField::Name, RecipeField::Serving, RecipeField::Instructions})
        draft.values[field] = AllowedInRecipe(draft.values[field].toString());
}
