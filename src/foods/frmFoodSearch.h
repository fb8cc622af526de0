#pragma once

#include "foods/ScaledFood.h"
#include "toolkit/Dialog.h"

class ucButton;
class ucSearchResults;

/// The modal dialog through which the day screen logs food. It stays open while one food after the
/// other is added; the day screen, which owns it, hears of each by FoodChosen.
class frmFoodSearch : public Dialog {
    Q_OBJECT

public:
    explicit frmFoodSearch(QWidget* owner = nullptr);

    ucSearchResults* ucSearchResults1() const { return search_; }

Q_SIGNALS:
    void FoodChosen(const QString& Meal, const ScaledFood& Item);

private:
    void BuildSearch();
    void BuildDone();
    void Examine(const ScaledFood& item);

    ucSearchResults* search_ = nullptr;
    ucButton* cmdDone_ = nullptr;
};
