#pragma once

#include "recipes/RecipeTexts.h"
#include "recipes/ui/CardField.h"

#include <QWidget>

#include <memory>

class ElidedLabel;
class InstructionText;
class ucAALBL;
class ucButton;
class ucIngredients;

/// The recipe card, `picRecCard`. It shows a recipe in labels; while the recipe is edited, entries
/// take their places. The card only shows and takes texts; the screen reads and saves them.
class RecipeCard : public QWidget {
    Q_OBJECT

public:
    explicit RecipeCard(QWidget* parent = nullptr);
    ~RecipeCard() override;

    void Clear();                                          ///< blank: no texts, no ingredients
    void ShowText(RecipeField field, const QString& text); ///< on its label
    QString ShownText(RecipeField field) const;
    void ShowCalories(const QString& caption);
    void ClearIngredients();
    void ShowIngredients(qint32 recipeID);

    void SetEntries(const RecipeTexts& texts);
    RecipeTexts Entries() const;
    void SetEditing(bool editing);
    void FocusEntry(RecipeField field);

    InstructionText* Instructions() const { return instructions_; }
    ucIngredients* Ingredients() const { return ucING_; }

Q_SIGNALS:
    void MouseMove(); ///< over the card or its instructions
    void IngredientsAsked();

protected:
    void resizeEvent(QResizeEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;

private:
    void AddName();
    void AddFacts();
    void AddInstructions();
    void AddIngredients();
    CardField* AddField(RecipeField field, const CardField::Names& names);
    CardField* FieldOf(RecipeField field) const; ///< null for the instructions

    int InnerWidth() const;
    void PlaceName();
    void PlaceFacts();
    void PlaceInstructions();
    void PlaceIngredients();

    std::array<std::unique_ptr<CardField>, RecipeFieldCount> fields_;
    ElidedLabel* aaCals_;
    ucAALBL* aaPrepare_;
    ucAALBL* aaIngredientsLBL_;
    InstructionText* instructions_;
    ucIngredients* ucING_;
    ucButton* cmdIngreds_;
};
