#include "store/Field.h"

#include "runtime/Attempt.h"
#include "runtime/Convert.h"
#include "runtime/Dates.h"
#include "runtime/Round.h"
#include "runtime/RuntimeError.h"

#include <algorithm>
#include <limits>

namespace {
void RefuseNull(const Field& field) {
    if (field.IsNull())
        throw RuntimeError(
            ErrorNumber::InvalidUseOfNull,
            QStringLiteral("Invalid use of Null: the column %1 holds no value.").arg(field.Name()));
}
} // namespace

bool Field::IsNull() const {
    return !value_.isValid();
}

QString Field::Text() const {
    switch (value_.typeId()) {
    case QMetaType::Bool:
        return value_.toBool() ? QStringLiteral("True") : QStringLiteral("False");
    case QMetaType::Double:
        return DecimalText(value_.toDouble());
    case QMetaType::QDate:
        return Dates::ShortText(value_.toDate());
    default:
        return value_.toString();
    }
}

double Field::Number() const {
    RefuseNull(*this);
    const int type = value_.typeId();
    if (type == QMetaType::QString || type == QMetaType::QDate)
        return ToDouble(Text());
    return value_.toDouble();
}

double Field::NumberOr(double fallback) const {
    using Limits = std::numeric_limits<double>;
    double number = fallback;
    if (!IsNull())
        Attempt([&] { number = Number(); });
    return std::clamp(number, Limits::lowest(), Limits::max());
}

qint32 Field::WholeOr(qint32 fallback) const {
    return RoundForDisplay(NumberOr(fallback));
}

QDate Field::Day() const {
    return value_.typeId() == QMetaType::QDate ? value_.toDate() : QDate();
}

bool Field::IsKey() const {
    return value_.typeId() == QMetaType::LongLong && value_.toLongLong() == WholeOr(0);
}

qint32 Field::Integer() const {
    return Round(Number());
}

bool Field::Boolean() const {
    RefuseNull(*this);
    return value_.typeId() == QMetaType::Bool ? value_.toBool() : Number() != 0;
}

QDate Field::Date() const {
    RefuseNull(*this);
    return value_.typeId() == QMetaType::QDate ? value_.toDate() : ToDate(Text());
}
