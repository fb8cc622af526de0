#include "catalogue/Catalogue.h"

#include "foods/release/FoodColumns.h"
#include "runtime/RuntimeError.h"
#include "store/Schema.h"

#include <algorithm>
#include <functional>
#include <iterator>

Catalogue::Catalogue(FoodRelease release)
    : release_(std::move(release)) {}

Catalogue Catalogue::FromRelease(const QString& folder) {
    Catalogue catalogue(FoodRelease::Read(folder));
    catalogue.Number();
    catalogue.SetValuelessAside();
    return catalogue;
}

void Catalogue::Number() {
    const auto count = release_.Foods().size();
    if (count > Schema::LastStockFood)
        throw RuntimeError(ErrorNumber::Overflow, QStringLiteral("more foods than stock keys"));
    int id = Schema::LastStockFood - int(count);
    for (const ReleaseFood& food : release_.Foods())
        foods_ << CatalogueRow{food, ++id};
}

void Catalogue::SetValuelessAside() {
    const auto valueless =
        std::stable_partition(foods_.begin(), foods_.end(), std::mem_fn(&ReleaseFood::HasValue));
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
    for (const CatalogueRow& food : foods_)
        table.Append(QStringList{QString::number(food.id)} + food.nutrients +
                     QStringList{food.name, food.servings.a.text, food.servings.b.text,
                                 food.servings.a.grams, food.servings.b.grams, food.number});
    return table;
}
