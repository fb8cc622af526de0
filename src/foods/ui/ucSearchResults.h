#pragma once

#include "foods/FoodList.h"
#include "foods/ScaledFood.h"
#include "toolkit/DrawnControl.h"

#include <QPointer>

class QCheckBox;
class QMenu;
class ResultRows;
class SearchProgress;
class TermField;
class ucButton;
class ucRadio;

/// The search panel: term, meal and sources at the top, a row for each food below. The settings
/// keep what was ticked and typed. The panel writes nothing to the store: its host decides what
/// happens to a chosen food.
class ucSearchResults : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(bool RecipeMode READ RecipeMode WRITE SetRecipeMode)
    Q_PROPERTY(int meal READ meal WRITE SetMeal)

public:
    explicit ucSearchResults(QWidget* parent = nullptr);
    ~ucSearchResults() override;

    bool RecipeMode() const { return recipeMode_; }
    void SetRecipeMode(bool on); ///< hides all meals but the first: an ingredient has none
    int meal() const { return meal_; }
    void SetMeal(int meal); ///< 0 Breakfast to 3 Snacks; ticks the option
    void SearchFoodsDB();
    void SearchByKey(); ///< and goes on to the first food
    void ShowResults();
    void ResetButtons();

Q_SIGNALS:
    void FoodChosen(const QString& Meal, const ScaledFood& Item);
    void FoodExamined(const ScaledFood& Item);

protected:
    bool eventFilter(QObject*, QEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void showEvent(QShowEvent*) override;

private:
    void BuildTerm();
    void BuildMeals();
    void BuildSources();
    void BuildResults();
    void Watch(QWidget* control); ///< handles its mouse moves like those of the panel
    void RestoreState();
    void StoreState() const;

    int TickedMeal() const; ///< the first ticked meal, or -1
    void TickMeal(int meal);

    void LogChosenFood(int Index, qint32 ID, const QString& Serv, double QTY, bool isRecipe);
    void ExamineChosenFood(int Index, qint32 ID, const QString& Serv, double QTY, bool isRecipe);
    void OfferHabits();
    void AddHabits(QMenu& menu, const char* heading, const QStringList& names);
    void SearchFor(const QString& name);
    void Refuse(const QString& message);

    TermField* txtSearchString_ = nullptr;
    QPointer<QMenu> habits_; ///< the last one
    ucButton* cmdGo_ = nullptr;
    ucRadio* opMeal_[4] = {};
    QCheckBox* ckStock_ = nullptr;
    QCheckBox* ckCustom_ = nullptr;
    QCheckBox* ckRecipes_ = nullptr;
    ResultRows* rows_ = nullptr;
    SearchProgress* picStatus_ = nullptr;
    FoodList foods_;
    int meal_ = 0;
    bool recipeMode_ = false;
};
