#pragma once

#include "foods/ui/SearchDialog.h"

/// The modal dialog in which a person finds foods to log. The day screen owns it.
class frmFoodSearch : public SearchDialog {
    Q_OBJECT

public:
    explicit frmFoodSearch(QWidget* owner = nullptr);

    ucSearchResults* ucSearchResults1() const { return Panel(); }
};
