#include "records/recipefiles/Yield.h"

#include "records/recipefiles/QuantityText.h"

void ReadYield(RecipeDraft& draft, const QString& text) {
    const QuantityText::Amount amount = QuantityText::Leading(text);
    if (!amount.value || *amount.value <= 0) {
        if (!text.trimmed().isEmpty())
            draft.remarks << QString(u"Makes: " + text.trimmed());
        return;
    }
    draft.values[RecipeField::Yield] = *amount.value;
    const QString serving = amount.rest.trimmed();
    const bool saysNothing = serving.startsWith(QLatin1String("serving"), Qt::CaseInsensitive);
    if (!serving.isEmpty() && !saysNothing && draft.values[RecipeField::Serving].isNull())
        draft.values[RecipeField::Serving] = serving;
}
