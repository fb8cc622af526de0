#pragma once

#include <QString>

class ExchangeClient;

/// Copies recipes between users.mdb and the exchange, a row at a time. Either fails with a
/// RuntimeError, and what it has written till then stays, here and there.
namespace RecipeExchange {

/// Appends a recipe of the exchange to one's own, under keys that the store makes: imported twice,
/// it is there twice. Its ingredients come with the quantity 1, as the exchange tells any other in
/// the serving. False where the exchange has no such recipe; nothing is written then. Ingredients
/// whose columns stand in another order than one's own are refused before anything is written.
bool Import(ExchangeClient& exchange, qint32 RecipeID);

struct Envelope {
    QString from;
    QString to;
    bool isPublic = false; ///< everybody may find it
};

/// Appends one's own recipe to the exchange and has it mailed. Gives what the exchange says to it.
QString Send(ExchangeClient& exchange, qint32 RecipeID, const Envelope& envelope);

} // namespace RecipeExchange
