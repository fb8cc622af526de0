#include "exchange/Site.h"

#include "exchange/Assets.h"
#include "exchange/Json.h"
#include "exchange/Pages.h"
#include "exchange/Refusal.h"
#include "exchange/Schema.h"
#include "exchange/Text.h"
#include "exchange/Words.h"

namespace exchange {
namespace {
constexpr const char* HtmlType = "text/html; charset=utf-8";
constexpr size_t LongestQuery = 200;

Router::Handler File(const std::string& text, const char* type) {
    return [&text, type](const Ask&, httplib::Response& response) {
        response.set_header("Cache-Control", "public, max-age=300");
        response.set_content(text, type);
    };
}

Pages::ListPage ReadListPage(const httplib::Request& request) {
    Pages::ListPage list;
    list.query = Trimmed(request.get_param_value("q"));
    if (list.query.size() > LongestQuery || !IsUtf8(list.query) || !IsPlain(list.query))
        throw Refusal(400, "These words cannot be searched for.");
    if (request.has_param("page")) {
        const auto page = WholeNumber(request.get_param_value("page"), 1, Pages::LastPage);
        if (!page)
            throw Refusal(404, "The list has no such page.");
        list.page = *page;
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
    const auto front = [](const Ask&, httplib::Response& response) {
        response.set_content(Pages::Front(), HtmlType);
    };
    router.Add("GET", "/", front);
    router.Add("GET", "/index.asp", front);
    router.Add("GET", "/halvane/community.asp",
               [this](const Ask& ask, auto& response) { Community(ask, response); });
    router.Add("GET", "/halvane/recipe.asp",
               [this](const Ask& ask, auto& response) { RecipePage(ask, response); });
}

void Site::AddFiles(Router& router) {
    router.Add("GET", "/halvane/style.css", File(Assets::style, "text/css; charset=utf-8"));
    router.Add("GET", "/halvane/logo.svg", File(Assets::logo, "image/svg+xml"));
    router.Add("GET", "/favicon.ico", File(Assets::logo, "image/svg+xml"));
}

void Site::AddWatches(Router& router) {
    router.Add("GET", "/health", [](const Ask&, httplib::Response& response) {
        response.set_content("{\"healthy\":true}", "application/json");
    });
    router.Add("GET", "/ready", [this](const Ask&, httplib::Response& response) {
        const Pool::Lease lease(service_.pool);
        Schema::Check(*lease);
        response.set_content("{\"ready\":true}", "application/json");
    });
}

void Site::Community(const Ask& ask, httplib::Response& response) const {
    auto list = ReadListPage(ask.request);
    auto words = Words::Of(list.query);
    if (words.size() > RecipeStore::MostWords)
        words.resize(RecipeStore::MostWords);
    if (list.query.empty() || !words.empty()) {
        const Pool::Lease lease(service_.pool);
        list.recipes = RecipeStore(*lease).List(words, list.page);
    }
    response.set_content(Pages::Community(list), HtmlType);
}

void Site::RecipePage(const Ask& ask, httplib::Response& response) const {
    const auto id = WholeNumber(ask.request.get_param_value("recID"), 2, 0x7fffffff);
    if (!id)
        throw Refusal(404, "There is no recipe with this ID.");
    const auto misses = service_.limits.Hourly("miss", ask.visitor);
    const int most = service_.config.misses_per_client_hour;
    std::optional<Recipe> recipe;
    bool slowed = false;
    {
        const Pool::Lease lease(service_.pool);
        slowed = Limits::Counted(*lease, misses) >= most;
        recipe = slowed ? std::nullopt : RecipeStore(*lease).ReadWhole(*id);
        if (!slowed && !recipe)
            Limits::Count(*lease, misses, most);
    }
    if (slowed)
        throw Refusal(429, Limits::TooManyMisses);
    if (!recipe)
        throw Refusal(404, "There is no recipe with this ID.");
    response.set_content(Pages::RecipePage(*recipe), HtmlType);
}

void Site::Fail(const httplib::Request& request, httplib::Response& response, int status,
                const std::string& reason) {
    response.status = status;
    if (request.path.starts_with("/halvane/api/"))
        response.set_content(Json::Reason(reason), "application/json");
    else if (request.path == "/halvane/sendrecipe.asp")
        response.set_content(reason, "text/plain; charset=utf-8");
    else
        response.set_content(Pages::Problem(status, reason), HtmlType);
}

} // namespace exchange
