#include "records/recipefiles/NutritionText.h"

#include "records/recipefiles/ForeignJson.h"
#include "records/recipefiles/LineText.h"

void ReadNutrition(RecipeDraft& draft, const QJsonObject& nutrition) {
    QStringList facts;
    for (auto fact = nutrition.begin(); fact != nutrition.end(); ++fact)
        if (const QString text = ForeignJson::Of(*fact);
            !fact.key().startsWith(u'@') && !text.isEmpty())
            facts << QString(fact.key() + u' ' + text);
    if (!facts.isEmpty())
        draft.remarks << QString(u"Nutrition of a serving: " + facts.join(QLatin1String(", ")));
    draft.kcal = LineText::FirstNumber(ForeignJson::Of(nutrition["calories"]));
}
