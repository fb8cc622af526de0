#include "foods/ui/frmFoodSearch.h"

frmFoodSearch::frmFoodSearch(QWidget* owner)
    : SearchDialog(QStringLiteral("frmFoodSearch"), QStringLiteral("Food Search"),
                   QStringLiteral("ucSearchResults1"), owner) {}
