#pragma once

#include "recipes/RecipeTexts.h"

#include <QWidget>

class ElidedLabel;
class InstructionText;
class QLabel;
class QLineEdit;
class ucAALBL;
class ucButton;
class ucIngredients;

/// The recipe card, `picRecCard`: a recipe to read, or to change, when fields stand where its
/// labels stood. The card only shows and takes texts; its screen reads and writes the rows.
class RecipeCard : public QWidget {
    Q_OBJECT

public:
    explicit RecipeCard(QWidget* parent = nullptr);

    void Clear();                                          ///< blank: no texts, no ingredients
    void ShowText(RecipeField field, const QString& text); ///< on its label
    QString ShownText(RecipeField field) const;
    void ShowCalories(const QString& caption);
    void ClearIngredients();
    void ShowIngredients(qint32 recipeID);

    void SetEntry(RecipeField field, const QString& text); ///< in its field
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
    /// What stands around a field on its line; `unit` is null where it has none.
    struct Fact {
        QLabel* caption;
        QLabel* unit;
    };

    void AddName();
    void AddFacts();
    void AddInstructions();
    void AddIngredients();
    void AddField(RecipeField field);
    ElidedLabel* Label(RecipeField field) const { return labels_[static_cast<size_t>(field)]; }
    QLineEdit* Entry(RecipeField field) const { return entries_[static_cast<size_t>(field)]; }

    void PlaceName();
    void PlaceFacts();
    void PlaceFact(size_t index);
    void PlaceInstructions();
    void PlaceIngredients();
    int CaptionWidth(int column) const;
    int InnerWidth() const;

    std::array<ElidedLabel*, RecipeFieldCount> labels_{}; ///< none for the instructions
    std::array<QLineEdit*, RecipeFieldCount> entries_{};  ///< none for the instructions
    std::array<Fact, 3> facts_{};
    ElidedLabel* aaCals_;
    ucAALBL* aaPrepare_;
    ucAALBL* aaIngredientsLBL_;
    InstructionText* instructions_;
    ucIngredients* ucING_;
    ucButton* cmdIngreds_;
    bool editing_ = false;
};
