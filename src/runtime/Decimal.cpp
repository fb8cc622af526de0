#include "runtime/Decimal.h"

#include <QStringBuilder>

#include <algorithm>
#include <charconv>

namespace {
void Normalise(Decimal& decimal) {
    while (decimal.digits.endsWith('0'))
        decimal.digits.chop(1);
    if (decimal.digits.isEmpty())
        decimal = Decimal();
}

void CarryOne(Decimal& decimal) {
    while (decimal.digits.endsWith('9'))
        decimal.digits.chop(1);
    if (decimal.digits.isEmpty()) {
        decimal.digits = "1";
        ++decimal.point;
    } else {
        ++decimal.digits.back();
    }
}
} // namespace

Decimal Decimal::Of(double value) {
    char buffer[32];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific).ptr;
    QByteArray text(buffer, end - buffer);
    Decimal decimal;
    decimal.negative = text.startsWith('-');
    const qsizetype mark = text.indexOf('e');
    decimal.point = text.mid(mark + 1).toInt() + 1;
    decimal.digits = text.left(mark).replace("-", "").replace(".", "");
    Normalise(decimal);
    return decimal;
}

void Decimal::Shift(int places) {
    if (!digits.isEmpty())
        point += places;
}

void Decimal::RoundTo(int decimals) {
    const int kept = point + decimals;
    if (kept >= digits.size())
        return;
    const bool up = kept >= 0 && digits.at(kept) >= '5';
    digits.truncate(std::max(kept, 0));
    if (up)
        CarryOne(*this);
    Normalise(*this);
}

QByteArray Decimal::WholePart() const {
    return point > 0 ? digits.left(point).leftJustified(point, '0') : QByteArray();
}

QByteArray Decimal::Fraction() const {
    if (digits.isEmpty() || point >= 0)
        return digits.mid(point);
    return QByteArray(-point, '0') + digits;
}
