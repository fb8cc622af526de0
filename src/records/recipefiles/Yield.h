#pragma once

#include "records/recipefiles/RecipeDraft.h"

/// Reads how many servings a recipe makes, and what one is called: "4 bowls" gives 4 and "bowls".
void ReadYield(RecipeDraft& draft, const QString& text);
