#include "records/peers/PeerJson.h"

#include "records/peers/PeerNumber.h"

#include <cmath>

namespace {
constexpr qsizetype LongestQuote = 500;

QString Compact(const QJsonValue& value) {
    const QJsonDocument document(value.isArray() ? QJsonDocument(value.toArray())
                                                 : QJsonDocument(value.toObject()));
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact)).left(LongestQuote);
}
} // namespace

std::optional<double> PeerJson::Number(const QJsonValue& value) {
    if (value.isNull() || value.isUndefined())
        return std::nullopt;
    if (value.isDouble())
        return value.toDouble();
    if (value.isString())
        return PeerNumber::Read(value.toString(), {});
    throw RuntimeError(ErrorNumber::TypeMismatch, QStringLiteral("A value is not a number."));
}

void PeerJson::TellOthers(const QJsonObject& amounts, const QStringList& names, Imported& into) {
    for (auto amount = amounts.begin(); amount != amounts.end(); ++amount)
        if (amount.value().toVariant().toDouble() > 0 && !names.contains(amount.key()))
            into.Remark("Amounts of " + amount.key() + " are not kept here.");
}

QString PeerJson::Text(const QJsonValue& value) {
    return value.isString() || value.isDouble() ? value.toVariant().toString() : QString();
}

Origin PeerJson::Element(const Origin& where, qsizetype index, const QJsonValue& value) {
    const QString list = where.place.isEmpty() ? QStringLiteral("element") : where.place;
    const QString place = list + u' ' + QString::number(index + 1);
    return {where.file, place, Compact(value)};
}
