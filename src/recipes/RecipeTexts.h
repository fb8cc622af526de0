#pragma once

#include "recipes/Recipe.h"

/// A rule that a recipe must meet to be saved.
struct RecipeCheck {
    RecipeField field;
    const char*
        refused; ///< the text must hold none of these characters; null: it must not be empty
    const char* message;
};

/// A recipe as texts, in the form in which a person reads and types them.
class RecipeTexts : public RecipeValues<QString> {
public:
    static RecipeTexts OfNewRecipe();
    const RecipeCheck* FirstFailed() const; ///< null if all rules are met
    /// Reads yield and time up to the first character that is not of a number, without the sign.
    Recipe Values() const;
};
