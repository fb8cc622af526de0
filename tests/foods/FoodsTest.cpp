#include "foods/FoodsTest.h"

#include "foods/ui/ucFood.h"
#include "foods/ui/ucSearchResults.h"
#include "store/Connection.h"

#include <QLineEdit>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {

void Bind(SQLite::Statement& statement, int position, const QVariant& value) {
    if (value.isNull())
        statement.bind(position);
    else if (value.typeId() == QMetaType::QString)
        statement.bind(position, value.toString().toStdString());
    else if (value.typeId() == QMetaType::Int)
        statement.bind(position, value.toInt());
    else
        statement.bind(position, value.toDouble());
}

void Insert(Connection& connection, const QString& table, const QStringList& columns,
            const QVariantList& values) {
    const QString marks = QStringList(columns.size(), QStringLiteral("?")).join(u',');
    const QString sql =
        u"INSERT INTO " + table + u" (" + columns.join(u',') + u") VALUES (" + marks + u')';
    SQLite::Statement insert(connection.Raw(), sql.toStdString());
    for (int i = 0; i < values.size(); ++i)
        Bind(insert, i + 1, values[i]);
    insert.exec();
}

void Append(QStringList& columns, QVariantList& values, const QMap<QString, double>& nutrients) {
    for (auto it = nutrients.begin(); it != nutrients.end(); ++it) {
        columns << it.key();
        values << it.value();
    }
}

} // namespace

void FoodsTest::SetUp() {
    HalvaneTest::SetUp();
    OpenEmptyDatabases();
}

void FoodsTest::AddFood(const FoodRow& food) {
    QStringList columns{"ID",          "FoodName",     "Serv_Desc_A",
                        "Serv_Desc_B", "Serv_GM_WT_A", "Serv_GM_WT_B"};
    QVariantList values{food.id, food.name, food.servA, food.servB, food.gramsA, food.gramsB};
    Append(columns, values, food.nutrients);
    Insert(FoodDB(), QStringLiteral("FOODS"), columns, values);
}

void FoodsTest::AddFoods(int count, int firstId, const QString& name) {
    SQLite::Transaction transaction(FoodDB().Raw());
    for (int i = 0; i < count; ++i)
        AddFood({.id = firstId + i,
                 .name = name + QStringLiteral(" %1").arg(i + 1, 3, 10, QLatin1Char('0'))});
    transaction.commit();
}

void FoodsTest::AddRecipes(int count, const QString& name) {
    SQLite::Transaction transaction(UserDB().Raw());
    for (int i = 0; i < count; ++i)
        AddRecipe(name, QStringLiteral("1 bowl"));
    transaction.commit();
}

qint32 FoodsTest::AddRecipe(const QString& name, const QString& serving) {
    Insert(UserDB(), QStringLiteral("Recipes"), {"RecipeName", "ServingName", "RecipeYield"},
           {name, serving, 4});
    return qint32(UserDB().Raw().getLastInsertRowid());
}

void FoodsTest::AddIngredient(qint32 recipe, const QMap<QString, double>& nutrients) {
    QStringList columns{"RecipeID", "FoodName"};
    QVariantList values{recipe, QStringLiteral("ingredient")};
    Append(columns, values, nutrients);
    Insert(UserDB(), QStringLiteral("Ingredients"), columns, values);
}

void FoodsTest::Search(ucSearchResults& panel, const QString& term) {
    Find<QLineEdit>(&panel, QStringLiteral("txtSearchString"))->setText(term);
    Click(Find(&panel, QStringLiteral("cmdGo")));
}

QList<ucFood*> FoodsTest::Rows(const ucSearchResults& panel) {
    QList<ucFood*> rows = panel.findChildren<ucFood*>();
    rows.removeIf([](const ucFood* row) { return row->objectName() == u"ucFood0"; });
    return rows;
}

QStringList FoodsTest::NamesShown(const ucSearchResults& panel) {
    QStringList names;
    for (const ucFood* row : Rows(panel))
        names << row->FoodName();
    return names;
}

void FoodsTest::ExpectNothingWritten() {
    EXPECT_EQ(Users(QStringLiteral("SELECT COUNT(*) FROM USER_FOODS")).toInt(), 0);
    EXPECT_EQ(Users(QStringLiteral("SELECT COUNT(*) FROM Ingredients")).toInt(), 0);
}
