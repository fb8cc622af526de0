#pragma once

#include <QJsonValue>
#include <QVariant>

/// Reads values that the exchange sends. A value of another kind than agreed is a RuntimeError.
namespace RemoteValue {
QVariant Number(const QJsonValue& value); ///< finite, or null
QVariant Text(const QJsonValue& value);   ///< or null
qint32 Count(const QJsonValue& value);    ///< a whole number from 0 up
} // namespace RemoteValue
