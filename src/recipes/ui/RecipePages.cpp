#include "recipes/ui/RecipePages.h"

#include "drawing/Pages.h"
#include "drawing/Style.h"
#include "recipes/RecipeBook.h"
#include "runtime/Convert.h"

namespace {

/// A fact that is not known is left out.
void PaintFact(Pages& pages, const char* caption, const QString& value, const char* unit = "") {
    if (!value.isEmpty())
        pages.Flow(QLatin1String(caption) + value + QLatin1String(unit), TheStyle().text,
                   TheStyle().ink);
}

void PaintFacts(Pages& pages, qint32 recipeID, const RecipeTexts& texts) {
    const Style& style = TheStyle();
    const QString& yield = texts[RecipeField::Yield];
    pages.Flow(texts[RecipeField::Name], style.cardTitle, style.heading);
    PaintFact(pages, "Recipe yield: ", yield, " servings");
    PaintFact(pages, "Serving size: ", texts[RecipeField::Serving]);
    PaintFact(pages, "Total time: ", texts[RecipeField::Time], " minutes");
    PaintFact(pages, "", RecipeBook::CaloriesPerServing(recipeID, yield));
}

void PaintIngredients(Pages& pages, qint32 recipeID) {
    const Style& style = TheStyle();
    pages.HeadingOfLines(QStringLiteral("Ingredients"));
    for (const Ingredient& ingredient : RecipeBook::Ingredients(recipeID))
        pages.Row(ingredient.name,
                  ingredient.serving + " (x " + DecimalText(ingredient.quantity) + u')',
                  style.reading, style.ink);
}

void PaintInstructions(Pages& pages, const QString& text) {
    pages.HeadingOfLines(QStringLiteral("Preparation Instructions"));
    pages.Flow(text, TheStyle().reading, TheStyle().ink);
}

} // namespace

void RecipePages::Paint(Pages& pages, qint32 recipeID) {
    RecipeTexts texts;
    RecipeBook::ReadInto(texts, recipeID);
    PaintFacts(pages, recipeID, texts);
    PaintIngredients(pages, recipeID);
    PaintInstructions(pages, texts[RecipeField::Instructions]);
}
