#include "foods/Logix.h"

#include "model/Nutrients.h"

QString RecipeSumSQL(qint32 RecipeID) {
    return NutrientSumSQL(QStringLiteral("Ingredients")) + u" FROM Ingredients  WHERE RecipeID =" +
           QString::number(RecipeID);
}
