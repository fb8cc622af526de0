#pragma once

#include "foods/FoodsTest.h"
#include "foods/ScaledFood.h"

/// Empty databases with one user. A test adds the recipes and ingredients that it needs.
class RecipesTest : public FoodsTest {
protected:
    void SetUp() override;

    /// A food whose entry n holds the amount n.
    static ScaledFood Counting(const QString& name = QStringLiteral("Flour"), double quantity = 1);

    /// Adds "Food 1", "Food 2" and so on to a recipe, each with those calories.
    void AddIngredients(qint32 recipe, int count, double calories = 100);

    int Count(const QString& table, const QString& condition = QStringLiteral("1"));
};
