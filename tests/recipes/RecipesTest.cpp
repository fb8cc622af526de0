#include "recipes/RecipesTest.h"

#include "model/Nutrients.h"
#include "store/Connection.h"

#include <SQLiteCpp/SQLiteCpp.h>

void RecipesTest::SetUp() {
    FoodsTest::SetUp();
    AddUser();
}

ScaledFood RecipesTest::Counting(const QString& name, double quantity) {
    ScaledFood item;
    for (int i = 1; i <= NutrientCount; ++i)
        item.Add("entry " + QString::number(i), double(i));
    item.Add(QStringLiteral("FOODNAME"), name);
    item.Add(QStringLiteral("SERVING"), QStringLiteral("1 cup"));
    item.Add(QStringLiteral("ID"), 4711);
    item.Add(QStringLiteral("QTY"), quantity);
    return item;
}

void RecipesTest::AddIngredients(qint32 recipe, int count, double calories) {
    SQLite::Transaction all(UserDB().Raw());
    SQLite::Statement insert(UserDB().Raw(),
                             "INSERT INTO Ingredients (RecipeID, FoodName, Serving, QTY, Calories) "
                             "VALUES (?, ?, '1 cup', 1, ?)");
    for (int i = 1; i <= count; ++i) {
        insert.bind(1, recipe);
        insert.bind(2, "Food " + std::to_string(i));
        insert.bind(3, calories);
        insert.exec();
        insert.reset();
    }
    all.commit();
}

int RecipesTest::Count(const QString& table, const QString& condition) {
    return Users("SELECT count(*) FROM " + table + " WHERE " + condition).toInt();
}
