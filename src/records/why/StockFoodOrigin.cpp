#include "records/why/StockFoodOrigin.h"

#include "foods/ScaledFood.h"
#include "foods/release/FoodColumns.h"
#include "foods/release/FoodRelease.h"
#include "foods/release/FoodSources.h"
#include "records/StoredAmounts.h"
#include "records/why/CatalogueRow.h"
#include "runtime/Convert.h"
#include "store/Recordset.h"

namespace {
/// A row of the catalogue and what the delivered list of sources tells of it.
struct StockRow {
    Recordset row;
    const FoodSources& sources;
    QString number;
    std::optional<FoodSource> source;
};

std::optional<double> NumberIn(const Field& field) {
    return field.IsNull() ? std::nullopt : std::optional(field.NumberOr(0));
}

bool IsAsReleased(const StockRow& stock) {
    std::vector<std::optional<double>> figures;
    for (int position = 1; position <= NutrientCount; ++position)
        figures.push_back(NumberIn(stock.row[position]));
    for (const char* grams : {"Serv_GM_WT_A", "Serv_GM_WT_B"})
        figures.push_back(NumberIn(stock.row[QLatin1String(grams)]));
    return stock.source && stock.source->check == FoodSources::CheckOf(figures);
}

QString FileAndHash(const StockRow& stock, const char* file, int line) {
    return QStringLiteral("%1, line %2 (SHA-256 %3)")
        .arg(QLatin1String(file), QString::number(line), stock.sources.Hash(file));
}

QString PlaceOf(const StockRow& stock, const ServingSource& serving) {
    if (serving.line > 0)
        return FileAndHash(stock, FoodRelease::WeightsFile, serving.line);
    if (serving.field == 0)
        return QStringLiteral("added, because the release has no such measure");
    const int field = FieldInLayout(serving.field, stock.sources.FieldCount());
    return QStringLiteral("fields %1 and %2").arg(field).arg(field + 1);
}

/// Empty where the food has no such serving.
QString ServingText(const StockRow& stock, QChar letter) {
    const QString text = stock.row[u"Serv_Desc_" + QString(letter)].Text();
    const Field grams = stock.row[u"Serv_GM_WT_" + QString(letter)];
    if (text.isEmpty() || grams.IsNull())
        return {};
    return QStringLiteral("Serving %1: %2 is %3 grams: %4")
        .arg(letter)
        .arg(text, DecimalText(grams.NumberOr(0)),
             PlaceOf(stock, letter == u'A' ? stock.source->a : stock.source->b));
}

QStringList About(const StockRow& stock) {
    QStringList about{"Food " + stock.number + " of the " + stock.sources.Release() + '.'};
    if (!stock.source)
        return about << QStringLiteral("The list of sources does not have this food: this "
                                       "catalogue was made from another release.");
    about << "Amounts in 100 grams: " +
                 FileAndHash(stock, FoodRelease::ValuesFile, stock.source->valuesLine)
          << "Name: " + FileAndHash(stock, FoodRelease::NamesFile, stock.source->nameLine)
          << ServingText(stock, u'A') << ServingText(stock, u'B')
          << (IsAsReleased(stock)
                  ? QStringLiteral("All figures are those of the release.")
                  : QStringLiteral("The figures are not those of the release: somebody has changed "
                                   "this row, or it is from another release."));
    about.removeAll(QString());
    return about;
}

QJsonObject Facts(const StockRow& stock) {
    QJsonObject facts = CatalogueRow::Facts(stock.row);
    facts["release"] = stock.sources.Release();
    facts["number"] = stock.number;
    facts["asReleased"] = IsAsReleased(stock);
    if (stock.source) {
        facts["file"] = FoodRelease::ValuesFile;
        facts["line"] = stock.source->valuesLine;
        facts["sha256"] = stock.sources.Hash(FoodRelease::ValuesFile);
    }
    return facts;
}

/// What stands in the release for a figure of the catalogue.
struct Released {
    int field = 0;
    int emptyField = 0; ///< which the other stands in for; 0 if none does
    QString value;      ///< empty if unknown
    QString unit;
};

Released ReleasedOf(const StockRow& stock, const FoodColumn& column, Nutrient nutrient,
                    std::optional<double> value) {
    const int count = stock.sources.FieldCount();
    Released released{FieldInLayout(column.field, count),
                      0,
                      {},
                      QLatin1String(column.unit ? column.unit : Info(nutrient).unit)};
    if (column.fallback && stock.source && stock.source->plainFolate) {
        released.emptyField = released.field;
        released.field = FieldInLayout(column.fallback, count);
    }
    if (value)
        released.value =
            DecimalText(ShiftDecimal(DecimalText(*value), -column.decimalShift).toDouble());
    return released;
}

QString OriginText(const Released& released, const FoodColumn& column) {
    const QString field = "field " + QString::number(released.field);
    if (released.value.isEmpty())
        return field + " is empty";
    if (released.emptyField)
        return field + ", because field " + QString::number(released.emptyField) + " is empty";
    if (column.decimalShift)
        return field + ": " + released.value + ' ' + released.unit + " / 1000";
    return field;
}

/// "1 tbsp: 717 / 100 * 14.2 = 101.814 kcal" for each serving.
QStringList Servings(const StockRow& stock, Nutrient nutrient, std::optional<double> value) {
    QStringList lines;
    const qint32 id = stock.row[QStringLiteral("ID")].Integer();
    for (const QString& letter : {QStringLiteral("A"), QStringLiteral("B")}) {
        const Field grams = stock.row["Serv_GM_WT_" + letter];
        const QString text = stock.row["Serv_Desc_" + letter].Text();
        if (value && !grams.IsNull() && !text.isEmpty())
            lines << text + ": " + DecimalText(*value) + " / 100 * " +
                         DecimalText(grams.NumberOr(0)) + " = " +
                         Explanation::Amount(ScaledFood::FromCatalogue(id, letter, 1)
                                                 .Amount(QLatin1String(Info(nutrient).logColumn)),
                                             nutrient);
    }
    return lines;
}

Explanation::Row RowOf(const StockRow& stock, Nutrient nutrient) {
    const FoodColumn& column = FoodColumns()[size_t(StoredAmounts::PlaceOf(nutrient))];
    const auto value = NumberIn(stock.row[QLatin1String(column.name)]);
    const Released released = ReleasedOf(stock, column, nutrient, value);
    QJsonObject facts = Explanation::FactsOf(nutrient);
    facts["in100Grams"] = Explanation::Fact(value);
    facts["field"] = released.field;
    facts["released"] = value ? QJsonValue(released.value.toDouble()) : QJsonValue();
    facts["releasedUnit"] = released.unit;
    return {nutrient, Explanation::Amount(value, nutrient), OriginText(released, column),
            Servings(stock, nutrient, value), facts};
}
} // namespace

Explanation StockFoodOrigin::Of(qint32 id, const FoodSources& sources) {
    StockRow stock{CatalogueRow::Of(id), sources, {}, {}};
    stock.number = stock.row[QStringLiteral("NDB_No")].Text();
    stock.source = sources.Find(stock.number);
    Explanation explanation{CatalogueRow::Title(stock.row), About(stock), Facts(stock), {}};
    for (const Nutrient nutrient : PeriodOrder())
        explanation.rows.push_back(RowOf(stock, nutrient));
    return explanation;
}
