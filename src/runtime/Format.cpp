#include "runtime/Format.h"

#include "runtime/Dates.h"
#include "runtime/Decimal.h"

#include <QLocale>

#include <cmath>

namespace {
/// What a mask asks for.
struct MaskParts {
    int shift;      ///< places that the point is moved to the right first
    int decimals;   ///< most digits after the point
    bool zeroDigit; ///< a digit before the point even where there is none
    bool grouped;   ///< thousands set apart
    bool point;     ///< the point always stands
    const char* suffix;
};

const MaskParts& PartsOf(NumberMask mask) {
    static constexpr MaskParts table[] = {
        {0, 2, true, false, true, ""},  // "0.##"
        {0, 0, false, true, false, ""}, // "###,###"
        {0, 0, false, true, false, ""}, // "##,###"
        {2, 0, true, true, false, "%"}, // "##,##0%"
        {0, 0, true, false, false, ""}, // "##0"
    };
    return table[static_cast<int>(mask)];
}

/// The digits are always 0 to 9. The separators of a locale with other digits do not fit them.
QLocale Separators() {
    const QLocale locale;
    return locale.zeroDigit() == QStringLiteral("0") ? locale : QLocale::c();
}

QString Grouped(QString whole, const QString& separator) {
    for (qsizetype place = whole.size() - 3; place > 0; place -= 3)
        whole.insert(place, separator);
    return whole;
}

QString WholeText(const Decimal& decimal, const MaskParts& parts, const QLocale& locale) {
    const QString whole = QString::fromLatin1(decimal.WholePart());
    if (whole.isEmpty() && parts.zeroDigit)
        return QStringLiteral("0");
    return parts.grouped ? Grouped(whole, locale.groupSeparator()) : whole;
}
} // namespace

QString Format(double value, NumberMask mask) {
    if (!std::isfinite(value))
        return QString::number(value);
    const MaskParts& parts = PartsOf(mask);
    const QLocale locale = Separators();
    Decimal decimal = Decimal::Of(value);
    decimal.Shift(parts.shift);
    decimal.RoundTo(parts.decimals);
    QString text = decimal.negative ? QStringLiteral("-") : QString();
    text += WholeText(decimal, parts, locale);
    if (parts.point)
        text += locale.decimalPoint() + QString::fromLatin1(decimal.Fraction());
    return text + QLatin1String(parts.suffix);
}

QString PlainNumber(QString formatted) {
    const QLocale locale = Separators();
    formatted.remove(locale.groupSeparator());
    return formatted.replace(locale.decimalPoint(), QStringLiteral("."));
}

QString FormatShortDate(QDate date) {
    return date.toString(QStringLiteral("MM/dd/yyyy"));
}

QString FormatLongDate(QDate date) {
    if (!date.isValid())
        return {};
    return Dates::WeekdayName(Dates::Weekday(date)) + QStringLiteral(", ") +
           Dates::MonthName(date.month()) + date.toString(QStringLiteral(" dd, yyyy"));
}
