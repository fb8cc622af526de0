#include "exchange/Router.h"

#include "exchange/Connection.h"
#include "exchange/Log.h"
#include "exchange/Moment.h"
#include "exchange/Refusal.h"
#include "exchange/Text.h"

#include <chrono>

namespace exchange {
namespace {
constexpr std::string_view Number = "{id}";

/// Safe for every reply; a handler may replace one of its own.
constexpr std::pair<const char*, const char*> Headers[] = {
    {"Content-Security-Policy", "default-src 'none'; style-src 'self'; img-src 'self'; form-action"
                                " 'self'; base-uri 'none'; frame-ancestors 'none'"},
    {"X-Content-Type-Options", "nosniff"},
    {"X-Frame-Options", "DENY"},
    {"Referrer-Policy", "no-referrer"},
    {"Cross-Origin-Resource-Policy", "same-origin"},
    {"Accept-Ranges", "none"},
};
} // namespace

void Router::Add(const std::string& method, const std::string& pattern, Handler handler) {
    Route route{method, pattern, pattern, std::nullopt, std::move(handler)};
    const auto number = pattern.find(Number);
    if (number != std::string::npos) {
        route.before = pattern.substr(0, number);
        route.after = pattern.substr(number + Number.size());
    }
    routes_.push_back(std::move(route));
}

bool Router::Route::Matches(const std::string& path, std::optional<int>& id) const {
    if (!after)
        return path == before;
    if (path.size() <= before.size() + after->size() || !path.starts_with(before) ||
        !path.ends_with(*after))
        return false;
    const auto digits =
        std::string_view(path).substr(before.size(), path.size() - before.size() - after->size());
    id = WholeNumber(digits, 2, 0x7fffffff);
    return id.has_value();
}

const Router::Route* Router::Find(const Request& request, std::optional<int>& id,
                                  std::string& allowed) const {
    const auto& method = request.method == "HEAD" ? std::string("GET") : request.method;
    for (const auto& route : routes_)
        if (route.Matches(request.path, id)) {
            if (route.method == method)
                return &route;
            allowed.append(allowed.empty() ? "" : ", ");
            allowed.append(route.method == "GET" ? "GET, HEAD" : route.method);
        }
    return nullptr;
}

void Router::Run(const Route& route, const Ask& ask, Reply& reply) const {
    try {
        reply.status = 200;
        route.handler(ask, reply);
    } catch (const Refusal& refusal) {
        if (refusal.Status() == 429)
            reply.SetHeader("Retry-After", "3600");
        failure_(ask.request, reply, refusal.Status(), refusal.what());
    } catch (const std::exception& error) {
        const auto what = Connection::Describe(error);
        Log::Error("failure", {{"route", route.pattern}, {"what", what}});
        failure_(ask.request, reply, 503, "The service is not available just now.");
    }
}

void Router::Answer(const Request& request, Reply& reply) const {
    const auto begin = std::chrono::steady_clock::now();
    for (const auto& [name, value] : Headers)
        reply.SetHeader(name, value);
    reply.SetHeader("Date", Moment::Written("%a, %d %b %Y %H:%M:%S GMT"));
    std::optional<int> id;
    std::string allowed;
    const auto* route = Find(request, id, allowed);
    if (route) {
        Run(*route, {request, id, VisitorOf(request, config_)}, reply);
    } else if (!allowed.empty()) {
        reply.SetHeader("Allow", allowed);
        failure_(request, reply, 405, "This address does not take that method.");
    } else {
        failure_(request, reply, 404, "There is nothing at this address.");
    }
    if (!config_.log_requests)
        return;
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begin;
    Log::Info("request", {{"route", route ? std::string_view(route->pattern) : "none"},
                          {"status", reply.status},
                          {"ms", took.count()}});
}

} // namespace exchange
