#pragma once

#include "support/Failure.h"
#include "support/HalvaneTest.h"

#include <QMap>

class QLineEdit;
class ucFood;
class ucSearchResults;

/// A row of the catalogue for a test. Missing amounts are null.
struct FoodRow {
    qint32 id = 0;
    QString name;
    QVariant servA = QStringLiteral("1 cup");
    QVariant servB = QStringLiteral("1 oz");
    QVariant gramsA = 100.0;
    QVariant gramsB = 28.0;
    QMap<QString, double> nutrients = {};
};

/// Empty databases to which a test adds the foods and recipes that it needs.
class FoodsTest : public HalvaneTest {
protected:
    void SetUp() override;

    void AddFood(const FoodRow& food);
    void AddFoods(int count, int firstId, const QString& name); ///< "name 001" and so on
    void AddRecipes(int count, const QString& name);
    qint32 AddRecipe(const QString& name, const QString& serving);
    void AddIngredient(qint32 recipe, const QMap<QString, double>& nutrients);

    /// Writes the term and presses the search button.
    void Search(ucSearchResults& panel, const QString& term);
    static QList<ucFood*> Rows(const ucSearchResults& panel);
    static QStringList NamesShown(const ucSearchResults& panel);
    using HalvaneTest::Rows;

    /// No food was logged and no ingredient added.
    void ExpectNothingWritten();
};
