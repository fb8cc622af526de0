#include "records/tables/RecordsTable.h"

Cell CellOf(std::optional<double> number) {
    return number ? Cell(*number) : Cell();
}

Cell CellOf(std::string text) {
    return text.empty() ? Cell() : Cell(std::move(text));
}

Cell CellOf(QDate day) {
    return day.isValid() ? Cell(day) : Cell();
}

QString TableColumn::Caption() const {
    return unit.isEmpty() ? name : QString(name + u" (" + unit + u')');
}
