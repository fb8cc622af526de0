#include "foods/Quantity.h"

static constexpr double MostLogged = 99;

QString Quantity::LogRefusal(double quantity) {
    return quantity == 0 || quantity > MostLogged
               ? QStringLiteral("Please enter a quantity (QTY) between .1 and 99")
               : QString();
}

QString Quantity::ExamineRefusal(double quantity) {
    return quantity == 0 ? QStringLiteral("Please enter a valid quantity (between .1 and 99)")
                         : QString();
}
