#include "records/why/Explanation.h"

#include "runtime/Convert.h"

QString Explanation::Amount(std::optional<double> value, Nutrient nutrient) {
    return value ? DecimalText(*value) + u' ' + QLatin1String(Info(nutrient).unit)
                 : QStringLiteral("unknown");
}

QJsonValue Explanation::Fact(std::optional<double> value) {
    return value ? QJsonValue(*value) : QJsonValue();
}

QJsonObject Explanation::FactsOf(Nutrient nutrient) {
    return {{"nutrient", QLatin1String(Info(nutrient).property)},
            {"unit", QLatin1String(Info(nutrient).unit)}};
}
