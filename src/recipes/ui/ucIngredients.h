#pragma once

#include "toolkit/AteList.h"

class ScaledFood;

/// The ingredients of one recipe in a scrolling list. It does not know its screen: whoever sets
/// another recipe, or adds to this one elsewhere, calls DisplayFoods.
class ucIngredients : public AteList {
    Q_OBJECT
    Q_PROPERTY(qint32 RecipeID READ RecipeID WRITE SetRecipeID)

public:
    explicit ucIngredients(QWidget* parent = nullptr);

    qint32 RecipeID() const { return recipeID_; }
    void SetRecipeID(qint32 RecipeID) { recipeID_ = RecipeID; } ///< shown from DisplayFoods on
    void DisplayFoods(bool ResetPane = false);                  ///< draws the list anew
    void ClearList();
    void showFood(const QString& FoodName, const QString& Serving, qint32 ID, double QTY);
    void AddFood(const ScaledFood& item);

protected:
    void RemoveRow(qint32 ID) override;
    void paintEvent(QPaintEvent*) override;

private:
    qint32 recipeID_ = 0;
};
