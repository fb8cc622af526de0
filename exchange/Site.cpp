#include "exchange/Site.h"

#include "exchange/Assets.h"
#include "exchange/Json.h"
#include "exchange/Pages.h"
#include "exchange/RecipeID.h"
#include "exchange/Refusal.h"
#include "exchange/Schema.h"
#include "exchange/Text.h"
#include "exchange/Words.h"

#include <limits>

namespace exchange {
namespace {
constexpr const char* HtmlType = "text/html; charset=utf-8";
constexpr size_t LongestQuery = 200;

Router::Handler File(const std::string& text, const char* type) {
    return [&text, type](const Ask&, Reply& reply) {
        reply.SetHeader("Cache-Control", "public, max-age=300");
        reply.SetContent(text, type);
    };
}

/// A request with an unreadable target also gets the reason as JSON.
bool IsForPrograms(const std::string& path) {
    return path.empty() || path == "/health" || path == "/ready" ||
           path.starts_with("/halvane/api/");
}

Pages::ListPage ReadListPage(const Request& request) {
    Pages::ListPage list;
    list.query = Trimmed(request.Param("q"));
    if (list.query.size() > LongestQuery || !IsUtf8(list.query) || !IsPlain(list.query))
        throw Refusal(400, "This text cannot be searched for.");
    if (request.HasParam("page")) {
        const auto page = WholeNumber(request.Param("page"), 1, Pages::LastPage);
        if (!page)
            throw Refusal(404, "The list has no such page.");
        list.page = *page;
    }
    if (request.HasParam("from")) {
        list.from = WholeNumber(request.Param("from"), 1, std::numeric_limits<int>::max());
        if (!list.from)
            throw Refusal(404, "The list has no such page.");
    }
    return list;
}
} // namespace

void Site::AddTo(Router& router) {
    AddPages(router);
    AddFiles(router);
    AddWatches(router);
}

void Site::AddPages(Router& router) {
    const auto front = [](const Ask&, Reply& reply) { reply.SetContent(Pages::Front(), HtmlType); };
    router.Add("GET", "/", front);
    router.Add("GET", "/index.asp", front);
    router.Add("GET", "/halvane/community.asp",
               [this](const Ask& ask, auto& reply) { Community(ask, reply); });
    router.Add("GET", "/halvane/recipe.asp",
               [this](const Ask& ask, auto& reply) { RecipePage(ask, reply); });
}

void Site::AddFiles(Router& router) {
    const RouteTerms here{.lane = Lane::Here};
    router.Add("GET", "/halvane/style.css", File(Assets::Style, "text/css; charset=utf-8"), here);
    router.Add("GET", "/halvane/logo.svg", File(Assets::Logo, "image/svg+xml"), here);
    router.Add("GET", "/favicon.ico", File(Assets::Logo, "image/svg+xml"), here);
}

void Site::AddWatches(Router& router) {
    const auto health = [](const Ask&, Reply& reply) {
        reply.SetContent("{\"healthy\":true}", "application/json");
    };
    const auto ready = [this](const Ask&, Reply& reply) {
        const Pool::Lease lease(service_.pool);
        Schema::Check(*lease);
        reply.SetContent("{\"ready\":true}", "application/json");
    };
    router.Add("GET", "/health", health, {.lane = Lane::Here});
    router.Add("GET", "/ready", ready, {.lane = Lane::Watch});
}

void Site::Community(const Ask& ask, Reply& reply) const {
    auto list = ReadListPage(ask.request);
    service_.rates.Take(list.query.empty() ? Rates::Pages : Rates::Searches, ask.visitor);
    const auto words = Words::Of(list.query);
    if (list.query.empty() || !words.empty()) {
        const Pool::Lease lease(service_.pool);
        list.found = RecipeStore(*lease).List(words, list.page, list.from);
    }
    reply.SetContent(Pages::Community(list), HtmlType);
}

void Site::RecipePage(const Ask& ask, Reply& reply) const {
    const auto id = RecipeID::Read(ask.request.Param("recID"));
    if (!id)
        MissGuard::Require(MissGuard::Verdict::Missed);
    service_.rates.Take(Rates::Pages, ask.visitor);
    const auto guess = service_.guard.Of(ask.visitor);
    RecipeStore::Shown shown;
    auto verdict = MissGuard::Verdict::Found;
    {
        const Pool::Lease lease(service_.pool);
        shown = RecipeStore(*lease).ReadShown(*id, guess);
        verdict = service_.guard.Judge(*lease, guess, shown.misses, shown.recipe.has_value());
    }
    MissGuard::Require(verdict);
    reply.SetContent(Pages::RecipePage(*shown.recipe, reportToken_.For(*id, ask.visitor)),
                     HtmlType);
}

void Site::Fail(const Request& request, Reply& reply, int status, const std::string& reason) {
    reply.status = status;
    if (IsForPrograms(request.path))
        reply.SetContent(Json::Reason(reason), "application/json");
    else if (request.path == "/halvane/sendrecipe.asp")
        reply.SetContent(reason, "text/plain; charset=utf-8");
    else
        reply.SetContent(Pages::Problem(status, reason), HtmlType);
}

} // namespace exchange
