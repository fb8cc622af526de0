#include "records/recipefiles/RecipeStore.h"

#include "recipes/RecipeBook.h"
#include "records/recipefiles/IngredientLabel.h"
#include "runtime/RuntimeError.h"

#include <algorithm>

namespace {
RecipeDraft Stored(qint32 key) {
    RecipeDraft draft{RecipeBook::ReadValues(key)};
    for (const QVariantList& row : RecipeBook::ReadIngredients(key).rows) {
        const FinishedIngredient ingredient = FinishedIngredient::OfRow(row);
        draft.ingredients.append({IngredientLabel(ingredient), ingredient});
    }
    return draft;
}

/// A whole number is equal to the same one with decimals.
bool IsSame(const QVariant& a, const QVariant& b) {
    if (a.isNull() || b.isNull())
        return a.isNull() == b.isNull();
    const bool isText = a.typeId() == QMetaType::QString || b.typeId() == QMetaType::QString;
    return isText ? a.toString() == b.toString() : a.toDouble() == b.toDouble();
}

bool IsSameIngredient(const IngredientLine& a, const IngredientLine& b) {
    return std::ranges::equal(a.finished->StoredValues(), b.finished->StoredValues(), IsSame);
}

bool IsSameRecipe(const RecipeDraft& a, const RecipeDraft& b) {
    return std::ranges::all_of(RecipeFields(),
                               [&](const RecipeFieldInfo& field) {
                                   return IsSame(a.values[field.id], b.values[field.id]);
                               }) &&
           std::ranges::equal(a.ingredients, b.ingredients, IsSameIngredient);
}

QList<RecipeDraft> OfName(const QString& name) {
    QList<RecipeDraft> recipes;
    for (const NamedKey& one : RecipeBook::Names())
        if (one.name.compare(name, Qt::CaseInsensitive) == 0)
            recipes << Stored(one.key);
    return recipes;
}
} // namespace

QList<RecipeDraft> RecipeStore::All() {
    QList<RecipeDraft> recipes;
    for (const NamedKey& one : RecipeBook::Names())
        recipes << Stored(one.key);
    return recipes;
}

QList<RecipeDraft> RecipeStore::Named(const QStringList& names) {
    QList<RecipeDraft> recipes;
    for (const QString& name : names) {
        const QList<RecipeDraft> found = OfName(name);
        if (found.isEmpty())
            throw RuntimeError(ErrorNumber::NoCurrentRecord,
                               u"There is no recipe \"" + name + u"\".");
        recipes << found;
    }
    return recipes;
}

bool RecipeStore::Has(const RecipeDraft& recipe) {
    return std::ranges::any_of(OfName(recipe.Name()), [&](const RecipeDraft& stored) {
        return IsSameRecipe(stored, recipe);
    });
}

void RecipeStore::Append(const RecipeDraft& recipe) {
    const qint32 key = RecipeBook::KeepRecipe(recipe.values);
    RecipeBook::KeepIngredients(key, static_cast<int>(recipe.ingredients.size()), [&](int row) {
        return recipe.ingredients[row].finished->StoredValues();
    });
}
