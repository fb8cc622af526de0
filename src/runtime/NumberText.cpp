#include "runtime/NumberText.h"

namespace {
QChar At(QStringView text, qsizetype place) {
    return place < text.size() ? text.at(place) : QChar();
}

bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

qsizetype SkipSign(QStringView text, qsizetype place) {
    const QChar c = At(text, place);
    return c == u'+' || c == u'-' ? place + 1 : place;
}

qsizetype SkipDigits(QStringView text, qsizetype place) {
    while (IsDigit(At(text, place)))
        ++place;
    return place;
}

qsizetype SkipExponent(QStringView text, qsizetype place) {
    if (At(text, place).toLower() != u'e')
        return place;
    const qsizetype digits = SkipSign(text, place + 1);
    const qsizetype end = SkipDigits(text, digits);
    return end > digits ? end : place;
}
} // namespace

qsizetype NumberText::LeadingLength(QStringView text) {
    const qsizetype start = SkipSign(text, 0);
    const qsizetype whole = SkipDigits(text, start);
    const bool hasPoint = At(text, whole) == u'.';
    const qsizetype end = hasPoint ? SkipDigits(text, whole + 1) : whole;
    const bool hasDigits = end - start > (hasPoint ? 1 : 0);
    return hasDigits ? SkipExponent(text, end) : 0;
}

double NumberText::Value(QStringView number) {
    return number.toDouble();
}
