#include "model/Nutrients.h"
#include "support/HalvaneTest.h"

#include "store/Connection.h"
#include "store/Recordset.h"

namespace {

QStringList ColumnNames(Connection& connection, const char* table, int first, int last) {
    const Recordset rows(connection, "SELECT * FROM " + QLatin1String(table));
    QStringList names;
    for (int position = first; position <= last; ++position)
        names << rows.FieldName(position).toLower();
    return names;
}

QStringList StoredNames() {
    QStringList names;
    for (const Nutrient id : StoredOrder())
        names << QString::fromLatin1(Info(id).logColumn).toLower();
    return names;
}

} // namespace

class StoredNutrientsTest : public HalvaneTest {};

TEST_F(StoredNutrientsTest, ThreeTablesHoldThemInOneOrderAndTheNameDirectlyBehind) {
    OpenEmptyDatabases();
    for (const auto& [connection, table] :
         {std::pair{&FoodDB(), "FOODS"}, std::pair{&UserDB(), "Ingredients"}}) {
        EXPECT_EQ(ColumnNames(*connection, table, 1, NutrientCount), StoredNames()) << table;
        EXPECT_EQ(ColumnNames(*connection, table, NutrientCount + 1, NutrientCount + 1),
                  QStringList("foodname"))
            << table;
    }
    EXPECT_EQ(ColumnNames(UserDB(), "USER_FOODS", 1, NutrientCount), StoredNames());
    EXPECT_EQ(ColumnNames(UserDB(), "USER_FOODS", NutrientCount + 1, NutrientCount + 1),
              QStringList("uid"));
}
