#pragma once

#include "exchange/Http.h"
#include "exchange/Visitor.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace exchange {

/// What a handler gets: the request, the number in its path if the route has one, and the visitor
/// whose limits count.
struct Ask {
    const Request& request;
    std::optional<int> id;
    const Visitor& visitor;
};

/// Where a handler runs: on the thread of the connections if it never waits, otherwise on a worker.
/// /ready has a thread of its own.
enum class Lane { Here, Workers, Watch };

struct RouteTerms {
    Lane lane = Lane::Workers;
    bool changes = false; ///< a GET that changes something, as every other method does
    std::string body = "application/json"; ///< the only accepted type of a body; empty: any
};

/// Finds the handler of a request by method and path, and answers requests without a handler. A
/// pattern is a path that may contain `{id}` once: a recipe's number.
class Router {
public:
    using Handler = std::function<void(const Ask&, Reply&)>;
    /// Writes the reply for a status and a reason, in the format of the requested path.
    using Failure =
        std::function<void(const Request&, Reply&, int status, const std::string& reason)>;

private:
    struct Route {
        std::string method;
        std::string pattern;
        std::string before;
        std::optional<std::string> after;
        Handler handler;
        RouteTerms terms;

        bool Matches(const std::string& path, std::optional<int>& id) const;
    };

public:
    /// The route that handles a request, if there is one.
    struct Match {
        const Route* route = nullptr;
        std::optional<int> id;
        std::string allowed; ///< the methods of the path, if the request has another one
        Lane lane = Lane::Here;

        std::string_view Name() const { return route ? std::string_view(route->pattern) : "none"; }
    };

    explicit Router(Failure failure)
        : failure_(std::move(failure)) {}

    void Add(const std::string& method, const std::string& pattern, Handler handler,
             RouteTerms terms = {});

    Match Find(const Request& request) const;
    Reply Answer(const Match& match, const Request& request, const Visitor& visitor) const;
    /// The reply to a request that is refused before it reaches a handler.
    Reply Refused(const Request& request, int status) const;

private:
    void Run(const Match& match, const Ask& ask, Reply& reply) const;

    Failure failure_;
    std::vector<Route> routes_;
};

} // namespace exchange
