#include "records/tables/CatalogueFood.h"

#include "store/Connection.h"
#include "store/RowReader.h"

namespace {
constexpr auto Statement = "SELECT FoodName, NDB_No, Serv_Desc_A, Serv_GM_WT_A, Serv_Desc_B, "
                           "Serv_GM_WT_B";
enum Column { FoodName, NDB_No, FirstServing, FirstNutrient = FirstServing + 4 };
constexpr auto UnnamedServing = "100 grams";

QString StatementFor(qint64 id) {
    QString statement = QLatin1String(Statement);
    for (const NutrientInfo& nutrient : Nutrients())
        statement += u", " + QLatin1String(nutrient.profileColumn);
    return statement + u" FROM FOODS WHERE ID = " + QString::number(id);
}
} // namespace

std::optional<CatalogueFood> CatalogueFood::Find(qint64 id) {
    RowReader row(FoodDB(), StatementFor(id));
    if (!row.Next())
        return {};
    CatalogueFood food;
    food.name_ = row.Text(FoodName);
    food.releaseNumber_ = row.Text(NDB_No);
    int column = FirstServing;
    for (Serving& serving : food.servings_) {
        serving.text = row.IsNull(column) ? UnnamedServing : row.Text(column);
        serving.grams = row.Number(column + 1).value_or(GramsOfAnyServing);
        column += 2;
    }
    for (const NutrientInfo& nutrient : Nutrients())
        food.known_[size_t(nutrient.id)] = !row.IsNull(FirstNutrient + int(nutrient.id));
    return food;
}

double CatalogueFood::GramsOf(const std::string& serving) const {
    for (const Serving& known : servings_)
        if (known.text == serving)
            return known.grams;
    return GramsOfAnyServing;
}
