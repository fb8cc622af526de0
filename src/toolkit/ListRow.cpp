#include "toolkit/ListRow.h"

#include "drawing/Style.h"

ListRow::ListRow(QWidget* parent)
    : DrawnControl(parent)
    , backColor_(Qt::white)
    , foreColor_(TheStyle().ink) {}
