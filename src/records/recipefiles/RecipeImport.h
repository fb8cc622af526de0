#pragma once

#include "records/recipefiles/IngredientChoice.h"
#include "records/recipefiles/RecipeDraft.h"

class RecordsFolder;

/// Brings recipes of files into the records. Lines of text are matched to foods, and a food is
/// taken only where it was accepted or chosen. The other lines stay in the instructions.
namespace RecipeImport {
struct Options {
    QStringList files;
    bool accept = false;   ///< take every food that was found with a quantity
    bool keepText = false; ///< leave lines as text
    QList<IngredientChoice> choices = {};
    bool dryRun = false;
};

/// A food with the quantity that a line asks for.
struct Candidate {
    FoodMatch match;
    QString label;   ///< "2 x 1 cup, Lentils, raw"
    double kcal = 0; ///< that it would bring
};

/// A line and the food that was found for it.
struct Proposal {
    int place = 0; ///< among the ingredients, from 1
    QString line;
    bool isHeading = false;
    std::optional<FoodMatch> match = {};
    double kcal = 0; ///< that it would bring; 0 without a quantity
    bool taken = false;
};

struct Imported {
    QString name;
    QList<Proposal> proposals;      ///< one for each line of text, headings too
    std::optional<double> fileKcal; ///< of a serving, as the file says
    double kcal = 0;                ///< of a serving, from what was taken
    bool isThere = false;           ///< an equal recipe is there already
};

/// A line of text that nobody has decided on, and the foods that fit it best.
struct Question {
    QString recipe;
    int number = 0; ///< of the recipe, from 1
    int place = 0;  ///< of the line among the ingredients, from 1
    QString line;
    QList<Candidate> candidates;
};

struct Result {
    QList<Imported> recipes;
    int added = 0;
    bool undecided = false; ///< lines of text wait for a decision: nothing was changed
};

/// What `Run` would leave undecided with these options.
QList<Question> Questions(const RecordsFolder& records, const Options& options);
Result Run(const RecordsFolder& records, const Options& options);
} // namespace RecipeImport
