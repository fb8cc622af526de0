#include "exchange/ReportToken.h"

#include "exchange/Moment.h"
#include "exchange/Secrets.h"

namespace exchange {
namespace {
long long Today() {
    return Moment::Now() / (24 * Moment::Hour);
}
} // namespace

std::string ReportToken::OfDay(long long day, int recipeID, const Visitor& visitor) const {
    return Secrets::Keyed(secret_, "report:" + std::to_string(day) + ":" +
                                       std::to_string(recipeID) + ":" + visitor.networks.front());
}

std::string ReportToken::For(int recipeID, const Visitor& visitor) const {
    return OfDay(Today(), recipeID, visitor);
}

bool ReportToken::Fits(std::string_view token, int recipeID, const Visitor& visitor) const {
    const auto today = Today();
    return Secrets::Equal(token, OfDay(today, recipeID, visitor)) ||
           Secrets::Equal(token, OfDay(today - 1, recipeID, visitor));
}

} // namespace exchange
