#include "recipes/ui/ucIngredients.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "recipes/RecipeBook.h"
#include "toolkit/AtePane.h"
#include "toolkit/SpokenRole.h"

#include <QPainter>

static constexpr int Edge = 1;

ucIngredients::ucIngredients(QWidget* parent)
    : AteList(Edge, parent) {
    SetSpokenRole(this, QAccessible::List);
    setAccessibleName(QStringLiteral("Ingredients"));
    Pane()->SetFillsFrame(false);
    connect(Pane(), &AtePane::PaneMove, this, &ucIngredients::RaiseMouseMove);
}

void ucIngredients::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PaintFrame(painter, rect(), TheStyle().rule);
}

void ucIngredients::DisplayFoods(bool ResetPane) {
    const AtePane::Redraw redraw(*Pane(), ResetPane);
    const std::vector<Ingredient> ingredients = RecipeBook::Ingredients(recipeID_);
    if (ingredients.empty())
        Pane()->AddBlankLine();
    for (const Ingredient& food : ingredients)
        showFood(food.name, food.serving, food.ID, food.quantity);
}

/// An empty redraw also hides the bar.
void ucIngredients::ClearList() {
    const AtePane::Redraw nothing(*Pane(), false);
}

void ucIngredients::showFood(const QString& FoodName, const QString& Serving, qint32 ID,
                             double QTY) {
    Pane()->showFood(FoodName, Serving, ID, QTY);
}

void ucIngredients::AddFood(const ScaledFood& item) {
    RecipeBook::AddIngredient(recipeID_, item);
    DisplayFoods();
}

void ucIngredients::RemoveRow(qint32 ID) {
    RecipeBook::RemoveIngredient(ID);
    DisplayFoods(true);
}
