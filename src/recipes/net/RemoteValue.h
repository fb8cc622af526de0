#pragma once

#include <QJsonValue>
#include <QVariant>

/// Values as the exchange gives them, each of the one kind that is agreed. Anything else fails with
/// a RuntimeError.
namespace RemoteValue {
QVariant Number(const QJsonValue& value); ///< finite; null is null
QVariant Text(const QJsonValue& value);   ///< null is null
qint32 Count(const QJsonValue& value);    ///< a whole number from 0 up
} // namespace RemoteValue
