#pragma once

#include "exchange/Visitor.h"

#include <string>
#include <string_view>

namespace exchange {

/// The token in the form that reports a recipe. It is valid for one recipe and one network, for at
/// least a day: a page of another site cannot make its visitors send the form.
class ReportToken {
public:
    explicit ReportToken(std::string secret)
        : secret_(std::move(secret)) {}
    std::string For(int recipeID, const Visitor& visitor) const;
    bool Fits(std::string_view token, int recipeID, const Visitor& visitor) const;

private:
    std::string OfDay(long long day, int recipeID, const Visitor& visitor) const;
    std::string secret_;
};

} // namespace exchange
