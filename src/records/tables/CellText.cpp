#include "records/tables/CellText.h"

#include <charconv>

static constexpr size_t LongestNumber = 32;

void CellText::AddNumber(std::string& text, double number) {
    char digits[LongestNumber];
    const auto end = std::to_chars(digits, digits + LongestNumber, number + 0.0); // no sign on zero
    text.append(digits, end.ptr);
}

std::string CellText::Iso(QDate day) {
    return day.toString(Qt::ISODate).toStdString();
}
