#include "records/recipefiles/DurationText.h"

#include <QRegularExpression>

#include <cmath>

namespace {
constexpr double HoursInDay = 24;
constexpr double MinutesInHour = 60;

std::optional<double> Positive(double minutes) {
    return minutes > 0 && std::isfinite(minutes) ? std::optional(minutes) : std::nullopt;
}

std::optional<double> Iso(const QString& text) {
    static const QRegularExpression iso(QStringLiteral(
        "^P(?:(\\d{1,4})D)?(?:T(?:(\\d{1,5})H)?(?:(\\d{1,6})M)?(?:[\\d.]{1,9}S)?)?$"));
    const QRegularExpressionMatch match = iso.match(text);
    return Positive((match.captured(1).toDouble() * HoursInDay + match.captured(2).toDouble()) *
                        MinutesInHour +
                    match.captured(3).toDouble());
}

double Count(const QString& text, const char* unit) {
    const QRegularExpression counted(QStringLiteral("(\\d{1,5}(?:[.,]\\d{1,3})?)\\s*") +
                                         QLatin1String(unit),
                                     QRegularExpression::CaseInsensitiveOption);
    return counted.match(text).captured(1).replace(u',', u'.').toDouble();
}
} // namespace

std::optional<double> MinutesOf(const QString& text) {
    const QString trimmed = text.trimmed();
    if (trimmed.startsWith(u'P'))
        return Iso(trimmed);
    const double words = Count(trimmed, "d(?:ays?)?\\b") * HoursInDay * MinutesInHour +
                         Count(trimmed, "h(?:ours?|rs?)?\\b") * MinutesInHour +
                         Count(trimmed, "m(?:in(?:ute)?s?)?\\b");
    bool isNumber = false;
    const double plain = trimmed.toDouble(&isNumber);
    return Positive(isNumber ? plain : words);
}
