#pragma once

#include "recipes/RecipeTexts.h"
#include "runtime/NameOrder.h"

#include <functional>
#include <vector>

class ScaledFood;

/// One line of a recipe's ingredients. The amounts stay in the store, where they are summed.
struct Ingredient {
    qint32 ID = 0;
    QString name;
    QString serving;
    double quantity = 1; ///< 1 if the store holds none
};

/// All that is stored of a recipe's ingredients, by position.
struct IngredientTable {
    QStringList columns;
    std::vector<QVariantList> rows;
};

/// The user's recipes and their ingredients. A recipe holds no totals: each ingredient holds
/// finished amounts, and a total is their sum. The store does not tie the two tables together, and
/// every Update commits on its own.
namespace RecipeBook {

QList<NamedKey> Names(); ///< in the order of the names
/// A field that holds nothing gives a null text. Fails (3021) without such a recipe.
RecipeTexts Read(qint32 RecipeID);
/// Fills in what can be read. A field that cannot be read keeps its text.
void ReadInto(RecipeTexts& texts, qint32 RecipeID);

qint32 AddRecipe(); ///< a new recipe before anything is typed; gives its key
/// Gives the first rule that is not met; then nothing is written. Null: the recipe is saved.
const RecipeCheck* SaveRecipe(qint32 RecipeID, const RecipeTexts& texts);
/// Removes the recipe and the first of its ingredients. The others stay, and nobody can reach them:
/// keys are never given out twice. What was logged from the recipe stays, too.
void DeleteRecipe(qint32 RecipeID);

/// The energy of one serving in words. `yieldCaption` is the yield as the card shows it. "--"
/// without ingredients, and if the figure fits no whole number.
QString CaloriesPerServing(qint32 RecipeID, const QString& yieldCaption);

std::vector<Ingredient> Ingredients(qint32 RecipeID); ///< in the order of adding
/// Appends one ingredient, whole or not at all. Entry n of the item goes to field n of the row.
void AddIngredient(qint32 RecipeID, const ScaledFood& item);
void RemoveIngredient(qint32 ID); ///< fails (3021) if it is gone

// What the recipe exchange reads and keeps.
Recipe ReadValues(qint32 RecipeID);
IngredientTable ReadIngredients(qint32 RecipeID);
QStringList IngredientColumns();         ///< names of all positions
qint32 KeepRecipe(const Recipe& recipe); ///< appends it; gives its key
/// Appends `count` ingredients. `read` gives each one's values from position 1 on, and is called
/// just before they are written: if it fails, the rows before stay.
void KeepIngredients(qint32 RecipeID, int count, const std::function<QVariantList(int row)>& read);

} // namespace RecipeBook
