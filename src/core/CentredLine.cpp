#include "core/CentredLine.h"

#include <QLabel>

void LayCentred(QLabel* line, int top) {
    line->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    line->setGeometry(0, top, line->parentWidget()->width(), line->sizeHint().height());
}
