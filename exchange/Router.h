#pragma once

#include "exchange/Config.h"
#include "exchange/Http.h"
#include "exchange/Visitor.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace exchange {

/// What a handler is given: the request, the number in its path if the route has one, and who is
/// counted for it.
struct Ask {
    const Request& request;
    std::optional<int> id;
    Visitor visitor;
};

/// Finds the handler of a request by method and path, and answers what no handler takes. A pattern
/// is a path that may hold `{id}` once: a recipe's number.
class Router {
public:
    using Handler = std::function<void(const Ask&, Reply&)>;
    /// Writes the reply for a status and a reason, in the manner of the place that was asked for.
    using Failure =
        std::function<void(const Request&, Reply&, int status, const std::string& reason)>;

    Router(const Config& config, Failure failure)
        : config_(config)
        , failure_(std::move(failure)) {}

    void Add(const std::string& method, const std::string& pattern, Handler handler);
    void Answer(const Request& request, Reply& reply) const;

private:
    struct Route {
        std::string method;
        std::string pattern;
        std::string before;
        std::optional<std::string> after;
        Handler handler;

        bool Matches(const std::string& path, std::optional<int>& id) const;
    };

    /// Nothing if no route takes the request; `allowed` are the methods that its path takes then.
    const Route* Find(const Request& request, std::optional<int>& id, std::string& allowed) const;
    void Run(const Route& route, const Ask& ask, Reply& reply) const;

    const Config& config_;
    Failure failure_;
    std::vector<Route> routes_;
};

} // namespace exchange
