#pragma once

#include <QtGlobal>

class Pages;

/// A recipe on paper, as it is stored: its facts, all its ingredients and its whole text.
namespace RecipePages {
void Paint(Pages& pages, qint32 recipeID);
}
