#pragma once

#include "model/Nutrients.h"
#include "recipes/Recipe.h"

#include <QStringList>
#include <QVariantList>

#include <optional>

/// An ingredient with its finished amounts, as the store holds it.
struct FinishedIngredient {
    QVariant name;
    QVariant serving;
    QVariant quantity;
    QVariantList amounts; ///< 31, in the stored order; null where unknown

    QVariantList StoredValues() const; ///< from position 1 of a row on
    static FinishedIngredient OfRow(const QVariantList& row);
};

/// An ingredient of a file: a line of text or, in a file of ours, finished amounts.
struct IngredientLine {
    QString text;
    std::optional<FinishedIngredient> finished = {};
    bool isHeading = false; ///< names a group of ingredients
};

/// A recipe as a file has it.
struct RecipeDraft {
    Recipe values;
    QList<IngredientLine> ingredients = {};
    QStringList remarks = {};        ///< what has no field of its own: source, notes, keywords
    std::optional<double> kcal = {}; ///< of one serving, as the file says

    bool isOwn = false; ///< we wrote the file: everything is as it was stored

    QString Name() const { return values[RecipeField::Name].toString(); }
    bool IsFinished() const;             ///< no ingredient is a line of text
    double InServing(Nutrient id) const; ///< its amount; all ingredients must be finished
};

/// Fills in what a recipe of another program needs here: a name, a yield and a serving. Replaces
/// the characters that the recipe screen refuses. A recipe of ours stays as it is.
void Complete(RecipeDraft& draft);

QString AllowedInRecipe(const QString& text); ///< without the characters that the screen refuses
