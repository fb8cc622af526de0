#include "toolkit/ListRow.h"

#include "drawing/Style.h"

ListRow::ListRow(QWidget* parent)
    : DrawnControl(parent)
    , backColor_(TheStyle().listItem)
    , foreColor_(TheStyle().ink) {}
