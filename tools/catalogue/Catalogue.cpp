#include "catalogue/Catalogue.h"

#include "catalogue/FoodColumns.h"
#include "runtime/RuntimeError.h"
#include "store/Schema.h"

#include <QDir>

#include <algorithm>
#include <functional>
#include <iterator>

namespace {

QHash<QString, QString> Names(const ReleaseTable& descriptions) {
    QHash<QString, QString> names;
    for (const ReleaseTable::Record& record : descriptions.Records())
        names.insert(record.Field(1), record.Field(3));
    return names;
}

CatalogueFood Food(const ReleaseTable::Record& values, const QString& name,
                   const Measures& measures) {
    CatalogueFood food;
    food.number = values.Field(1);
    food.name = name;
    for (const FoodColumn& column : FoodColumns()) {
        food.nutrients << ColumnValue(values, column);
        if (column.fallback)
            food.plainFolate =
                AbbrevField(values, column.field).isEmpty() && !food.nutrients.last().isEmpty();
    }
    food.servings = measures.Choose(food.number, values);
    return food;
}

} // namespace

bool CatalogueFood::HasValue() const {
    return std::ranges::any_of(nutrients, [](const QString& value) { return !value.isEmpty(); });
}

Catalogue Catalogue::FromRelease(const QString& folder) {
    const QDir release(folder);
    const auto values = ReleaseTable::Read(release.filePath(QStringLiteral("ABBREV.txt")),
                                           {ShortLayout, LongLayout});
    const auto descriptions =
        ReleaseTable::Read(release.filePath(QStringLiteral("FOOD_DES.txt")), {14});
    const auto weights = ReleaseTable::Read(release.filePath(QStringLiteral("WEIGHT.txt")), {7});

    Catalogue catalogue;
    catalogue.valuesRead_ = int(values.Records().size());
    catalogue.descriptionsRead_ = int(descriptions.Records().size());
    catalogue.weightsRead_ = int(weights.Records().size());
    catalogue.AddFoods(values, descriptions, Measures(weights));
    catalogue.Number();
    catalogue.SetValuelessAside();
    return catalogue;
}

void Catalogue::AddFoods(const ReleaseTable& values, const ReleaseTable& descriptions,
                         const Measures& measures) {
    const QHash<QString, QString> names = Names(descriptions);
    for (const ReleaseTable::Record& record : values.Records()) {
        const QString name = names.value(record.Field(1));
        if (name.isEmpty())
            unnamed_ << record.Field(1);
        else
            foods_ << Food(record, name, measures);
    }
}

void Catalogue::Number() {
    const auto byNumber = [](const CatalogueFood& food) { return food.number.toInt(); };
    std::ranges::sort(foods_, {}, byNumber);
    const auto twice = std::ranges::adjacent_find(foods_, {}, byNumber);
    if (twice != foods_.end())
        throw RuntimeError(ErrorNumber::TypeMismatch, u"food " + twice->number + u" stands twice");
    if (foods_.isEmpty())
        throw RuntimeError(ErrorNumber::TypeMismatch, QStringLiteral("the release holds no foods"));
    if (foods_.size() > Schema::LastStockFood)
        throw RuntimeError(ErrorNumber::Overflow, QStringLiteral("more foods than stock keys"));
    int id = Schema::LastStockFood - int(foods_.size());
    for (CatalogueFood& food : foods_)
        food.id = ++id;
}

void Catalogue::SetValuelessAside() {
    const auto valueless =
        std::stable_partition(foods_.begin(), foods_.end(), std::mem_fn(&CatalogueFood::HasValue));
    std::move(valueless, foods_.end(), std::back_inserter(valueless_));
    foods_.erase(valueless, foods_.end());
    if (foods_.isEmpty() || foods_.last().id != Schema::LastStockFood)
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("the last food of the release has no value"));
}

TsvTable Catalogue::Table() const {
    QStringList columns{QStringLiteral("ID")};
    for (const FoodColumn& column : FoodColumns())
        columns << QLatin1String(column.name);
    columns << QStringLiteral("FoodName") << QStringLiteral("Serv_Desc_A")
            << QStringLiteral("Serv_Desc_B") << QStringLiteral("Serv_GM_WT_A")
            << QStringLiteral("Serv_GM_WT_B") << QStringLiteral("NDB_No");
    TsvTable table(columns);
    for (const CatalogueFood& food : foods_)
        table.Append(QStringList{QString::number(food.id)} + food.nutrients +
                     QStringList{food.name, food.servings.a.text, food.servings.b.text,
                                 food.servings.a.grams, food.servings.b.grams, food.number});
    return table;
}
