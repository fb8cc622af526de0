#include "exchange/Router.h"

#include "exchange/Connection.h"
#include "exchange/Log.h"
#include "exchange/RecipeID.h"
#include "exchange/Refusal.h"
#include "exchange/Text.h"

namespace exchange {
namespace {
constexpr std::string_view Number = "{id}";

struct Sentence {
    int status;
    const char* text;
};
constexpr Sentence Sentences[] = {
    {408, "The request did not arrive in time."},
    {411, "The request has a body without Content-Length."},
    {413, "The body is too large."},
    {414, "The address is too long."},
    {415, "The body must not be compressed."},
    {417, "The header Expect is not supported."},
    {431, "The headers of the request are too large."},
    {503, "The service is not available just now."},
};

std::string SentenceFor(int status) {
    for (const auto& sentence : Sentences)
        if (sentence.status == status)
            return sentence.text;
    return "The request cannot be understood.";
}

/// The type alone, without its parameters.
std::string TypeOf(const Request& request) {
    const auto type = request.Header("content-type");
    return Lower(Trimmed(type.substr(0, type.find(';'))));
}

bool IsRead(const std::string& method) {
    return method == "GET" || method == "HEAD";
}

/// A browser tells whether a page of another site made the request. Such a page may link here, but
/// it must not make its visitors change anything.
void RefuseForeign(const Request& request, const RouteTerms& terms) {
    if (terms.changes && request.Header("sec-fetch-site") == "cross-site")
        throw Refusal(403, "This address cannot be used from a page of another site.");
}

/// A form of another site can only send a few types, and none of them is the required one.
void RefuseOtherTypes(const Request& request, const RouteTerms& terms) {
    if (!IsRead(request.method) && !terms.body.empty() && TypeOf(request) != terms.body)
        throw Refusal(415, "The body must be " + terms.body + ".");
}
} // namespace

void Router::Add(const std::string& method, const std::string& pattern, Handler handler,
                 RouteTerms terms) {
    terms.changes = terms.changes || !IsRead(method);
    Route route{method, pattern, pattern, std::nullopt, std::move(handler), std::move(terms)};
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
    id = RecipeID::Read(digits);
    return id.has_value();
}

Router::Match Router::Find(const Request& request) const {
    Match match;
    const auto method = request.method == "HEAD" ? "GET" : std::string_view(request.method);
    for (const auto& route : routes_) {
        if (!route.Matches(request.path, match.id))
            continue;
        if (route.method == method) {
            match.route = &route;
            match.lane = route.terms.lane;
            return match;
        }
        match.allowed.append(match.allowed.empty() ? "" : ", ");
        match.allowed.append(route.method == "GET" ? "GET, HEAD" : route.method);
    }
    return match;
}

void Router::Run(const Match& match, const Ask& ask, Reply& reply) const {
    try {
        RefuseForeign(ask.request, match.route->terms);
        RefuseOtherTypes(ask.request, match.route->terms);
        match.route->handler(ask, reply);
    } catch (const Refusal& refusal) {
        if (refusal.RetryAfter() > 0)
            reply.SetHeader("Retry-After", std::to_string(refusal.RetryAfter()));
        failure_(ask.request, reply, refusal.Status(), refusal.what());
    } catch (const std::exception& error) {
        const auto what = Connection::Describe(error);
        Log::Error("failure", {{"route", match.Name()}, {"what", what}});
        failure_(ask.request, reply, 503, SentenceFor(503));
    }
}

Reply Router::Answer(const Match& match, const Request& request, const Visitor& visitor) const {
    Reply reply;
    if (match.route) {
        Run(match, {request, match.id, visitor}, reply);
    } else if (!match.allowed.empty()) {
        reply.SetHeader("Allow", match.allowed);
        failure_(request, reply, 405, "This address does not accept this method.");
    } else {
        failure_(request, reply, 404, "There is nothing at this address.");
    }
    return reply;
}

Reply Router::Refused(const Request& request, int status) const {
    Reply reply;
    failure_(request, reply, status, SentenceFor(status));
    return reply;
}

} // namespace exchange
