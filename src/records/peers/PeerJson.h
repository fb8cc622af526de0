#pragma once

#include "records/peers/Imported.h"
#include "runtime/RuntimeError.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// A JSON file of another program.
namespace PeerJson {
/// Numbers may be texts. Empty for null, an empty text and a missing key; fails for all else.
std::optional<double> Number(const QJsonValue& value);
QString Text(const QJsonValue& value); ///< of a text or a number; empty for all else

/// Tells which amounts have none of these names though they are above 0.
void TellOthers(const QJsonObject& amounts, const QStringList& names, Imported& into);

/// Takes each element of an array by `take(object, origin)`. One that cannot be taken is refused
/// with the reason.
template <class Take>
void ForEach(const QJsonArray& array, const Origin& where, Imported& into, Take take);

Origin Element(const Origin& where, qsizetype index, const QJsonValue& value);
} // namespace PeerJson

template <class Take>
void PeerJson::ForEach(const QJsonArray& array, const Origin& where, Imported& into, Take take) {
    for (qsizetype i = 0; i < array.size(); ++i) {
        const QJsonValue value = array[i];
        const Origin origin = Element(where, i, value);
        try {
            take(value.toObject(), origin);
        } catch (const RuntimeError& wrong) {
            into.Refuse(origin, wrong.Description());
        }
    }
}
