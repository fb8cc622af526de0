#pragma once

#include <QString>

class ExchangeClient;

/// Copies recipes between users.mdb and the exchange, row by row. A failure is a RuntimeError; rows
/// that were written before it stay, on both sides.
namespace RecipeExchange {

/// Appends a recipe of the exchange to the user's own. The store makes new keys, so a recipe that
/// is imported twice is there twice. Ingredients get the quantity 1: the exchange writes any other
/// into the serving. False if the exchange has no such recipe; then nothing is written. Columns in
/// another order than ours are refused before anything is written.
bool Import(ExchangeClient& exchange, qint32 RecipeID);

struct Envelope {
    QString from;
    QString to;
    bool isPublic = false; ///< everybody can find it
};

/// Appends a recipe of the user's to the exchange and asks it to mail it. Gives the answer.
QString Send(ExchangeClient& exchange, qint32 RecipeID, const Envelope& envelope);

} // namespace RecipeExchange
