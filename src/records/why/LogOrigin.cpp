#include "records/why/LogOrigin.h"

#include "foods/FoodSearch.h"
#include "foods/ScaledFood.h"
#include "model/NutrientAmounts.h"
#include "records/KeyText.h"
#include "records/why/CatalogueRow.h"
#include "runtime/Convert.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "store/Recordset.h"

#include <cmath>

namespace {
/// They stand for a whole recipe in the arithmetic, and for a serving without a weight.
constexpr double HundredGrams = 100;

/// The food or the recipe that an entry was logged from, as it is today.
struct Source {
    Food food;
    QString serving;        ///< "A" or "B"
    double grams;           ///< of the serving
    NutrientAmounts values; ///< in 100 grams
    ScaledFood result;      ///< what logging it today would give
};

QString Column(Nutrient nutrient) {
    return QLatin1String(Info(nutrient).logColumn);
}

Recordset EntryOf(qint32 recID) {
    Recordset entry(UserDB(),
                    QStringLiteral("SELECT * FROM USER_FOODS WHERE RecID = %1").arg(recID));
    if (entry.AtEnd())
        throw RuntimeError(ErrorNumber::NoCurrentRecord,
                           u"There is no entry " + KeyText::Of(KeyText::Entry, recID) + u'.');
    return entry;
}

double QuantityOf(const Recordset& entry) {
    return entry[QStringLiteral("QTY")].NumberOr(0);
}

bool IsFrom(const Recordset& entry, const ScaledFood& food) {
    return food.Text(QStringLiteral("FOODNAME")) == entry[QStringLiteral("FoodName")].Text() &&
           food.Text(QStringLiteral("SERVING")) == entry[QStringLiteral("Serving")].Text();
}

/// A quantity that was changed later has rounded once more than logging does.
bool AreSame(double logged, double today) {
    constexpr double rounding = 1e-14;
    return std::abs(logged - today) <= std::abs(today) * rounding;
}

/// Two servings may have the same name: then the one that gives the amounts of the entry.
bool HasAmountsOf(const Recordset& entry, const ScaledFood& food) {
    return std::ranges::all_of(StoredOrder(), [&](Nutrient nutrient) {
        return AreSame(entry[Column(nutrient)].NumberOr(0), food.Amount(Column(nutrient)));
    });
}

Source FoodSourceOf(const Food& food, const QString& serving, ScaledFood result) {
    const Recordset row = CatalogueRow::Of(food.ID);
    return {food, serving, row["Serv_GM_WT_" + serving].NumberOr(HundredGrams),
            NutrientAmounts::Of(row), std::move(result)};
}

std::optional<Source> FromFood(const Recordset& entry, const Food& food) {
    std::optional<Source> source;
    for (const QString& serving : {QStringLiteral("A"), QStringLiteral("B")}) {
        const ScaledFood result = ScaledFood::FromCatalogue(food.ID, serving, QuantityOf(entry));
        if (IsFrom(entry, result) && (!source || HasAmountsOf(entry, result)))
            source = FoodSourceOf(food, serving, result);
    }
    return source;
}

std::optional<Source> FromRecipe(const Recordset& entry, const Food& recipe) {
    const ScaledFood whole = ScaledFood::FromRecipe(recipe.ID, 1);
    if (!IsFrom(entry, whole))
        return {};
    Source source{recipe,
                  QStringLiteral("A"),
                  HundredGrams,
                  {},
                  ScaledFood::FromRecipe(recipe.ID, QuantityOf(entry))};
    for (const Nutrient nutrient : StoredOrder())
        source.values.Set(nutrient, whole.Amount(Column(nutrient)));
    return source;
}

/// No column tells a food from a recipe: name and serving do.
std::optional<Source> SourceOf(const Recordset& entry) {
    const qint32 id = entry[QStringLiteral("ID")].WholeOr(-1);
    if (const auto food = FoodSearch::WithKey(id, false))
        if (auto source = FromFood(entry, *food))
            return source;
    if (const auto recipe = FoodSearch::WithKey(id, true))
        return FromRecipe(entry, *recipe);
    return {};
}

QString KeyOf(const Source& source) {
    return KeyText::OfFood(source.food.ID, source.food.isRecipe);
}

QString SourceText(const Recordset& entry, const std::optional<Source>& source) {
    if (!source)
        return QStringLiteral("No food and no recipe has the key %1 with this name and serving any "
                              "more. The amounts stay as they were logged.")
            .arg(entry[QStringLiteral("ID")].Text());
    if (source->food.isRecipe)
        return "From the sums of " + KeyOf(*source) + ", times the quantity.";
    return "From " + KeyOf(*source) + ": amount in 100 grams / 100 * grams of serving " +
           source->serving + " * quantity.";
}

QString LoggedText(const Recordset& entry) {
    const QString meal = entry[QStringLiteral("Meal")].Text();
    const QString day = entry[QStringLiteral("UDate")].Day().toString(Qt::ISODate);
    return "Logged on " + day + (meal.isEmpty() ? QString() : " for " + meal) + '.';
}

QString Arithmetic(const Source& source, Nutrient nutrient, double quantity) {
    return DecimalText(source.values[nutrient].value_or(0)) + " / 100 * " +
           DecimalText(source.grams) + " * " + DecimalText(quantity);
}

QString OriginText(const Recordset& entry, const Source& source, Nutrient nutrient) {
    const double today = source.result.Amount(Column(nutrient));
    if (!AreSame(entry[Column(nutrient)].NumberOr(0), today))
        return Arithmetic(source, nutrient, QuantityOf(entry)) + " is " + DecimalText(today) +
               " today: the food has changed since";
    if (!source.values[nutrient])
        return QStringLiteral("unknown in the food, counts as 0");
    return "= " + Arithmetic(source, nutrient, QuantityOf(entry));
}

Explanation::Row RowOf(const Recordset& entry, const std::optional<Source>& source,
                       Nutrient nutrient) {
    const Field stored = entry[Column(nutrient)];
    const auto amount = stored.IsNull() ? std::nullopt : std::optional(stored.NumberOr(0));
    Explanation::Row row{
        nutrient, Explanation::Amount(amount, nutrient), {}, {}, Explanation::FactsOf(nutrient)};
    row.facts["logged"] = Explanation::Fact(amount);
    if (!source)
        return row;
    row.origin = OriginText(entry, *source, nutrient);
    row.facts["in100Grams"] = Explanation::Fact(source->values[nutrient]);
    row.facts["today"] = source->result.Amount(Column(nutrient));
    return row;
}

QJsonObject Facts(const Recordset& entry, const std::optional<Source>& source) {
    QJsonObject facts{{"kind", "log"},
                      {"key", entry[QStringLiteral("RecID")].WholeOr(0)},
                      {"name", entry[QStringLiteral("FoodName")].Text()},
                      {"serving", entry[QStringLiteral("Serving")].Text()},
                      {"date", entry[QStringLiteral("UDate")].Day().toString(Qt::ISODate)},
                      {"meal", entry[QStringLiteral("Meal")].Text()},
                      {"quantity", QuantityOf(entry)},
                      {"from", QJsonValue()}};
    if (source) {
        facts["from"] = KeyOf(*source);
        facts["grams"] = source->grams;
    }
    return facts;
}
} // namespace

Explanation LogOrigin::Of(qint32 recID) {
    const Recordset entry = EntryOf(recID);
    const std::optional<Source> source = SourceOf(entry);
    Explanation explanation{entry[QStringLiteral("FoodName")].Text() + u", " +
                                entry[QStringLiteral("Serving")].Text() + u" (x " +
                                DecimalText(QuantityOf(entry)) + u") (" +
                                KeyText::Of(KeyText::Entry, recID) + u')',
                            {LoggedText(entry), SourceText(entry, source)},
                            Facts(entry, source),
                            {}};
    for (const Nutrient nutrient : PeriodOrder())
        explanation.rows.push_back(RowOf(entry, source, nutrient));
    return explanation;
}
