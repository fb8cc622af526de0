#pragma once

#include "foods/FoodsTest.h"
#include "foods/ScaledFood.h"

/// Empty databases with one user, to which a test adds the recipes and ingredients that it needs.
class RecipesTest : public FoodsTest {
protected:
    void SetUp() override;

    /// A food whose amounts are 1 to 31 in the order of its entries.
    static ScaledFood Counting(const QString& name = QStringLiteral("Flour"), double quantity = 1);

    /// Ingredients of one recipe, called "Food 1" and so on, of `calories` each.
    void AddIngredients(qint32 recipe, int count, double calories = 100);

    int Count(const QString& table, const QString& condition = QStringLiteral("1"));
};
