#include "records/why/OwnFoodOrigin.h"

#include "foods/CustomFoods.h"
#include "model/NutrientAmounts.h"
#include "records/why/CatalogueRow.h"
#include "runtime/Convert.h"

namespace {
QString ServingText(const Recordset& row) {
    const QString serving = row[QStringLiteral("Serv_Desc_A")].Text();
    const double grams = row[QStringLiteral("Serv_GM_WT_A")].NumberOr(CustomFoods::ServingGrams);
    if (grams == CustomFoods::ServingGrams)
        return "Amounts in one serving: " + serving;
    return "Amounts in 100 grams. One serving, " + serving + ", is " + DecimalText(grams) +
           " grams.";
}

QStringList About(const Recordset& row) {
    QStringList about{"A food of your own: row " + row[QStringLiteral("ID")].Text() +
                          " of FOODS in foods.mdb.",
                      ServingText(row)};
    if (const QString identifier = row[QStringLiteral("NDB_No")].Text(); !identifier.isEmpty())
        about << "It was imported as " + identifier + '.';
    return about;
}

Explanation::Row RowOf(Nutrient nutrient, std::optional<double> amount) {
    QJsonObject facts = Explanation::FactsOf(nutrient);
    facts["amount"] = Explanation::Fact(amount);
    return {nutrient,
            Explanation::Amount(amount, nutrient),
            amount ? QStringLiteral("as the row has it") : QStringLiteral("the row has none"),
            {},
            facts};
}
} // namespace

Explanation OwnFoodOrigin::Of(qint32 id) {
    const Recordset row = CatalogueRow::Of(id);
    const NutrientAmounts amounts = NutrientAmounts::Of(row);
    Explanation explanation{CatalogueRow::Title(row), About(row), CatalogueRow::Facts(row), {}};
    explanation.facts["identifier"] = row[QStringLiteral("NDB_No")].Text();
    for (const Nutrient nutrient : PeriodOrder())
        explanation.rows.push_back(RowOf(nutrient, amounts[nutrient]));
    return explanation;
}
