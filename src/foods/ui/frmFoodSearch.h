#pragma once

#include "foods/ui/SearchDialog.h"

/// The modal dialog through which the day screen, which owns it, logs food.
class frmFoodSearch : public SearchDialog {
    Q_OBJECT

public:
    explicit frmFoodSearch(QWidget* owner = nullptr);

    ucSearchResults* ucSearchResults1() const { return Panel(); }
};
