#pragma once

#include "foods/ScaledFood.h"

#include <QWidget>

/// The search panel: term, sources and meal above, one row a food below.
class ucSearchResults : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool RecipeMode READ RecipeMode WRITE SetRecipeMode)
    Q_PROPERTY(int meal READ meal WRITE SetMeal)

public:
    explicit ucSearchResults(QWidget* parent = nullptr);
    ~ucSearchResults() override;

    bool RecipeMode() const;
    void SetRecipeMode(bool on);
    int meal() const;
    void SetMeal(int meal); ///< 0 Breakfast to 3 Snacks; ticks the option
    void SearchFoodsDB();
    void ShowResults();
    void ResetButtons();

Q_SIGNALS:
    void FoodChosen(const QString& Meal, const ScaledFood& Item);
    void FoodExamined(const ScaledFood& Item);
    void MouseMove(int Button, int Shift, double X, double Y);
};
