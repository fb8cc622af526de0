#include "records/text/JsonInput.h"

#include "records/text/ByteOrderMark.h"
#include "runtime/RuntimeError.h"

QJsonDocument JsonInput::Parsed(const QByteArray& bytes, const QString& name) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(ByteOrderMark::Removed(bytes), &error);
    if (error.error != QJsonParseError::NoError)
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("%1 is not JSON: %2 at byte %3.")
                               .arg(name, error.errorString())
                               .arg(error.offset));
    return document;
}
