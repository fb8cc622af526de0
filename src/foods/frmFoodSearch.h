#pragma once

#include "foods/ScaledFood.h"
#include "toolkit/Dialog.h"

class ucSearchResults;

/// The modal dialog through which the day screen logs food. It stays open while one food after the
/// other is added.
class frmFoodSearch : public Dialog {
    Q_OBJECT

public:
    explicit frmFoodSearch(QWidget* owner = nullptr);

    ucSearchResults* ucSearchResults1() const { return search_; }

Q_SIGNALS:
    void FoodChosen(const QString& Meal, const ScaledFood& Item);

private:
    ucSearchResults* search_;
};
