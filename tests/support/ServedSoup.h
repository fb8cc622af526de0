#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>

class ScriptedServer;

/// A recipe with two ingredients, as the exchange serves it.
struct ServedSoup {
    static constexpr qint32 Soup = 1218105222; ///< its ID on the server

    static QString RecipePath(const QString& behind = QString());
    static QJsonObject SoupRecipe();
    static QJsonArray SoupRows();
    static QJsonArray Fields(); ///< names of the 36 columns of an ingredient, in order
    static QByteArray Table(const QJsonArray& rows);
    static QByteArray Json(const QJsonObject& object);

    static void TellSoup(ScriptedServer& server); ///< prepares the answers of the exchange
};
