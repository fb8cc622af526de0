#pragma once

#include "foods/FoodList.h"
#include "toolkit/ScrollPane.h"

#include <functional>

class QLabel;
class ucFood;

/// The scrolling column of rows below the search fields. Each search makes new rows ucFood1,
/// ucFood2 and so on; ucFood0 is a hidden template. A row makes its controls when it comes into
/// view.
class ResultRows : public ScrollPane {
    Q_OBJECT

public:
    explicit ResultRows(QWidget* parent);

    /// Makes a row for each of the first `count` entries. `progress` gets the fraction that is
    /// done.
    void Load(const FoodList& foods, int count, bool recipeMode,
              const std::function<void(double)>& progress);
    int Count() const { return int(rows_.size()) - 1; }
    void FocusFirst(); ///< the quantity of the first row; there must be one
    void SetTabPredecessor(QWidget* control) { predecessor_ = control; }

Q_SIGNALS:
    void EatFood(int Index, qint32 ID, const QString& Serv, double QTY, bool isRecipe);
    void ExamineFood(int Index, qint32 ID, const QString& Serv, double QTY, bool isRecipe);
    void RowMouseMove();

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void BuildTemplate();
    void BuildNoMatch();
    void Unload();
    void LoadRow(int index, const Food& food, bool recipeMode);
    void Connect(ucFood* row, int index);
    void SizePane();
    void PlaceBar();
    void FitWidths();
    void PlaceNoMatch();
    void MaterialiseShown();

    QList<ucFood*> rows_; ///< row 0 is the template
    QLabel* noMatch_ = nullptr;
    QWidget* predecessor_ = nullptr; ///< comes before the first row in the tab order
};
