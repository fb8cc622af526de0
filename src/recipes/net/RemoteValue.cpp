#include "recipes/net/RemoteValue.h"

#include "runtime/RuntimeError.h"

#include <cmath>

namespace {

[[noreturn]] void Refuse(const QString& kind) {
    throw RuntimeError(ErrorNumber::ServiceFailed,
                       "The exchange gave something else than " + kind + u'.');
}

} // namespace

QVariant RemoteValue::Number(const QJsonValue& value) {
    if (value.isNull())
        return {};
    if (!value.isDouble() || !std::isfinite(value.toDouble()))
        Refuse(QStringLiteral("a number"));
    return value.toDouble();
}

QVariant RemoteValue::Text(const QJsonValue& value) {
    if (value.isNull())
        return {};
    if (!value.isString())
        Refuse(QStringLiteral("a text"));
    return value.toString();
}

qint32 RemoteValue::Count(const QJsonValue& value) {
    const qint32 count = value.toInt(-1);
    if (count < 0)
        Refuse(QStringLiteral("a whole number"));
    return count;
}
