#pragma once

#include "foods/ui/SearchDialog.h"

class QLabel;
class QTimer;

/// The modal dialog through which foods become ingredients of the recipe that is edited. The screen
/// that owns it hears of each by FoodChosen, whose meal it passes over. A notice tells that a food
/// was added; it goes at the next tick of `tmrHider`, two seconds after the first of a run.
class frmRecSearch : public SearchDialog {
    Q_OBJECT

public:
    explicit frmRecSearch(QWidget* owner = nullptr);

protected:
    void Choose(const QString& Meal, const ScaledFood& Item) override;
    void showEvent(QShowEvent*) override; ///< stands at its owner's left and top

private:
    void BuildNotice();
    void ShowNotice();
    void HideNotice();

    QLabel* lblInfo_ = nullptr;
    QTimer* tmrHider_ = nullptr;
};
