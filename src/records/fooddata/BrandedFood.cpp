#include "records/fooddata/BrandedFood.h"

#include "records/fooddata/FoodTally.h"
#include "records/fooddata/FoodText.h"

#include <algorithm>

namespace {
enum Column {
    Key,
    Number,
    Owner,
    BrandName,
    Size,
    Unit,
    Household,
    Category,
    Source,
    Modified,
    Available,
    Discontinued
};

const QStringList& Columns() {
    static const QStringList columns{QStringLiteral("fdc_id"),
                                     QStringLiteral("gtin_upc"),
                                     QStringLiteral("?brand_owner"),
                                     QStringLiteral("?brand_name"),
                                     QStringLiteral("serving_size"),
                                     QStringLiteral("serving_size_unit"),
                                     QStringLiteral("?household_serving_fulltext"),
                                     QStringLiteral("?branded_food_category"),
                                     QStringLiteral("?data_source"),
                                     QStringLiteral("?modified_date"),
                                     QStringLiteral("?available_date"),
                                     QStringLiteral("?discontinued_date")};
    return columns;
}

enum class Measure { Grams, Millilitres, MistakenGrams };
struct ServingUnit {
    const char* name;
    Measure measure;
};
/// In one source the number is in grams although the unit says milligrams.
constexpr ServingUnit Units[] = {
    {"g", Measure::Grams},          {"grm", Measure::Grams},       {"gm", Measure::Grams},
    {"ml", Measure::Millilitres},   {"mlt", Measure::Millilitres}, {"mg", Measure::MistakenGrams},
    {"mc", Measure::MistakenGrams},
};

const ServingUnit* UnitOf(const QString& name) {
    const auto* unit = std::ranges::find_if(Units, [&](const ServingUnit& one) {
        return name.compare(QLatin1String(one.name), Qt::CaseInsensitive) == 0;
    });
    return unit == std::end(Units) ? nullptr : unit;
}

/// The measure of the household in plain words. A scrap of the label, which does not begin with a
/// number, is no measure.
QString HouseholdMeasure(QString text) {
    text.replace(QLatin1String("ONZ"), QLatin1String("oz"));
    text.replace(QLatin1String("OZA"), QLatin1String("fl oz"));
    const bool counts = !text.isEmpty() && (text[0].isDigit() || text[0] == u'.');
    return counts ? FoodText::Allowed(text) : QString();
}
} // namespace

BrandedTable::BrandedTable(const QString& folder)
    : table_(folder, QStringLiteral("branded_food.csv"), Columns()) {}

quint32 BrandedTable::Key() const {
    return table_.Key(Column::Key);
}

QByteArrayView BrandedTable::Number() const {
    return table_[Column::Number];
}

bool BrandedTable::IsDiscontinued() const {
    return !table_[Discontinued].trimmed().isEmpty();
}

QString BrandedTable::ReadInto(FdcFood& food, FoodTally& tally) const {
    const QString brand = Brand();
    if (const QString name = QString::fromUtf8(food.name);
        !brand.isEmpty() && !name.contains(brand, Qt::CaseInsensitive))
        food.name = QString(name + u", " + brand).toUtf8();
    food.category = table_.Text(Category).toUtf8();
    food.modified = table_.Day(Modified);
    food.available = table_.Day(Available);
    ReadServing(food, tally);
    return table_[Source] == "Euromonitor"
               ? QStringLiteral("its source does not give amounts of 100 g")
               : QString();
}

QString BrandedTable::Brand() const {
    const QString name = table_.Text(BrandName);
    const bool hasName = !name.isEmpty() && name != QLatin1String("NOBRAND");
    return FoodText::Allowed(hasName ? name : table_.Text(Owner));
}

void BrandedTable::ReadServing(FdcFood& food, FoodTally& tally) const {
    const auto size = table_.Number(Size);
    const ServingUnit* unit = UnitOf(table_.Text(Unit));
    if (!size || *size <= 0 || !unit)
        return tally.Note(QStringLiteral("foods without a serving in g or ml got 100 g"));
    if (unit->measure == Measure::MistakenGrams)
        tally.Note(QStringLiteral("servings in MG or MC were read as grams"));
    food.amount = *size;
    food.millilitres = unit->measure == Measure::Millilitres;
    food.serving = FoodText::WithAmount(HouseholdMeasure(table_.Text(Household)), *size,
                                        QLatin1String(food.millilitres ? "ml" : "g"))
                       .toUtf8();
}
