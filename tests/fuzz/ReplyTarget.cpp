#include "fuzz/Scratch.h"
#include "fuzz/Target.h"

#include "recipes/RecipeBook.h"
#include "recipes/net/ExchangeClient.h"
#include "recipes/net/RecipeExchange.h"
#include "runtime/Attempt.h"
#include "store/Connection.h"
#include "store/Transaction.h"

namespace {
constexpr qint32 Asked = 12;
QByteArrayList replies; ///< for the recipe, and for its ingredients

/// The first byte of a reply is its status: that of a recipe, of one that is unknown, or of a
/// failure.
HttpReply Reply(const QByteArray& bytes) {
    constexpr int statuses[] = {200, 404, 500};
    const int chosen = bytes.isEmpty() ? 2 : (bytes[0] - '0') % 3;
    return {statuses[chosen < 0 ? 2 : chosen], bytes.mid(1)};
}

void ExpectWhole(qint32 recipe) {
    RecipeBook::Read(recipe);
    RecipeBook::Ingredients(recipe);
    RecipeBook::CaloriesPerServing(recipe, QStringLiteral("4"));
}
} // namespace

/// Stands in for the network.
HttpReply HttpClient::Get(const QString& address, qint64) const {
    return Reply(replies[address.endsWith(QLatin1String("/ingredients")) ? 1 : 0]);
}
HttpReply HttpClient::GetOnce(const QString&, qint64) const {
    return {};
}
HttpReply HttpClient::PostJson(const QString&, const QByteArray&, const QByteArray&, qint64) const {
    return {};
}

/// A reply is refused, or the recipe can be shown and sums can be made of it.
void Fuzz(const std::string& bytes) {
    Scratch::OpenRecords();
    replies = Scratch::Parts(bytes, 2);
    const Transaction undone(UserDB());
    ExchangeClient exchange;
    Attempt([&] { RecipeExchange::Import(exchange, Asked); });
    for (const NamedKey& recipe : RecipeBook::Names())
        ExpectWhole(recipe.key);
}
