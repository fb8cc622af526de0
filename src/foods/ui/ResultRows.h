#pragma once

#include "foods/FoodList.h"
#include "toolkit/ScrollPane.h"

#include <functional>

class QLabel;
class ucFood;

/// The scrolling column of rows below the search fields: ucFood1 and up, loaded anew for each
/// search, under the hidden template ucFood0. A row makes its controls by the time it is seen.
class ResultRows : public ScrollPane {
    Q_OBJECT

public:
    explicit ResultRows(QWidget* parent);

    /// One row for each of the first `count` entries; `progress` is told the part that stands.
    void Load(const FoodList& foods, int count, bool recipeMode,
              const std::function<void(double)>& progress);
    int Count() const { return int(rows_.size()) - 1; }
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
    QWidget* predecessor_ = nullptr; ///< what stands before the first row in the tab order
};
