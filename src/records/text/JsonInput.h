#pragma once

#include <QJsonDocument>
#include <QString>

/// The JSON of a file that another program wrote.
namespace JsonInput {
/// Fails where it is none: `name` says what is read, and the message tells at which byte it breaks
/// off. A byte order mark is not part of it.
QJsonDocument Parsed(const QByteArray& bytes, const QString& name);
} // namespace JsonInput
