#pragma once

#include "toolkit/DrawnControl.h"

class AtePane;
class ScaledFood;

/// The ingredients of one recipe in a scrolling list, each with a trash can that removes it at
/// once. It knows nothing of the screen around it: whoever sets another recipe, or adds to this
/// one elsewhere, has the list displayed.
class ucIngredients : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(qint32 RecipeID READ RecipeID WRITE SetRecipeID)

public:
    explicit ucIngredients(QWidget* parent = nullptr);

    qint32 RecipeID() const { return recipeID_; }
    void SetRecipeID(qint32 RecipeID) { recipeID_ = RecipeID; } ///< shown from DisplayFoods on
    void DisplayFoods(bool ResetPane = false);                  ///< draws the list anew
    void ClearList();
    void InitControls();
    void showFood(const QString& FoodName, const QString& Serving, qint32 ID, double QTY);
    void AddFood(const ScaledFood& item);

Q_SIGNALS:
    void FoodRemoved();

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void RemoveFood(qint32 ID);
    bool DeleteRow(qint32 ID);

    qint32 recipeID_ = 0;
    AtePane* pane_;
};
