#pragma once

#include "foods/ui/SearchDialog.h"

class QLabel;
class QTimer;

/// The modal dialog that adds foods to the recipe being edited. Its owner receives FoodChosen for
/// each food and ignores the meal. A notice says that a food was added. It disappears at the next
/// tick of `tmrHider`, two seconds after the first food of a run.
class frmRecSearch : public SearchDialog {
    Q_OBJECT

public:
    explicit frmRecSearch(QWidget* owner = nullptr);

protected:
    void Choose(const QString& Meal, const ScaledFood& Item) override;
    void showEvent(QShowEvent*) override; ///< places it at its owner's top left corner

private:
    void BuildNotice();
    void ShowNotice();
    void HideNotice();

    QLabel* lblInfo_ = nullptr;
    QTimer* tmrHider_ = nullptr;
};
