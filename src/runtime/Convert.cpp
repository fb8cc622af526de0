#include "runtime/Convert.h"

#include "runtime/Dates.h"
#include "runtime/Decimal.h"
#include "runtime/NumberText.h"
#include "runtime/Round.h"
#include "runtime/RuntimeError.h"

#include <cmath>

namespace {
constexpr qsizetype LongestQuote = 40;

[[noreturn]] void Fail(int number, QStringView text, const QString& complaint) {
    throw RuntimeError(number,
                       u'"' + text.left(LongestQuote) + QStringLiteral("\" is ") + complaint);
}

[[noreturn]] void FailMismatch(QStringView text, const QString& kind) {
    Fail(ErrorNumber::TypeMismatch, text, QStringLiteral("not a ") + kind + u'.');
}

bool IsNumber(QStringView text) {
    return !text.isEmpty() && NumberText::LeadingLength(text) == text.size();
}
} // namespace

double ToDouble(QStringView text) {
    const QStringView number = text.trimmed();
    if (!IsNumber(number))
        FailMismatch(text, QStringLiteral("number"));
    const double value = NumberText::Value(number);
    if (!std::isfinite(value))
        Fail(ErrorNumber::Overflow, text, QStringLiteral("too large a number."));
    return value;
}

qint32 ToInteger(QStringView text) {
    return Round(ToDouble(text));
}

QDate ToDate(QStringView text) {
    const QDate date = Dates::Parse(text);
    if (!date.isValid())
        FailMismatch(text, QStringLiteral("date"));
    return date;
}

double NumberOrZero(QStringView text) {
    const QStringView number = text.trimmed();
    const double value = IsNumber(number) ? NumberText::Value(number) : 0;
    return std::isfinite(value) ? value : 0;
}

QString DecimalText(double value) {
    if (!std::isfinite(value))
        return QString::number(value);
    const Decimal decimal = Decimal::Of(value);
    const QByteArray whole = decimal.WholePart();
    QByteArray text = decimal.negative ? "-" : "";
    text += whole.isEmpty() ? QByteArray("0") : whole;
    if (const QByteArray fraction = decimal.Fraction(); !fraction.isEmpty())
        text += '.' + fraction;
    return QString::fromLatin1(text);
}
