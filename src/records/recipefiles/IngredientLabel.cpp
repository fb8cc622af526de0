#include "records/recipefiles/IngredientLabel.h"

#include "runtime/Convert.h"

QString IngredientLabel(const FinishedIngredient& ingredient) {
    const double quantity = ingredient.quantity.isNull() ? 1 : ingredient.quantity.toDouble();
    QStringList parts;
    for (const QVariant& part : {ingredient.serving, ingredient.name})
        if (!part.toString().isEmpty())
            parts << part.toString().simplified();
    return DecimalText(quantity) + u" x " + parts.join(QLatin1String(", "));
}
