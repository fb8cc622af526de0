#include "exchange/Api.h"

#include "exchange/Json.h"
#include "exchange/RecipeReader.h"
#include "exchange/Refusal.h"

namespace exchange {
namespace {
constexpr const char* JsonType = "application/json";

/// The token of an `Authorization: Bearer` header; empty if there is none.
std::string Token(const Request& request) {
    constexpr std::string_view scheme = "Bearer ";
    const auto value = request.Header("authorization");
    return value.starts_with(scheme) ? value.substr(scheme.size()) : std::string();
}

[[noreturn]] void Refuse(RecipeStore::Added why) {
    switch (why) {
    case RecipeStore::Added::AlreadySent:
        throw Refusal(409, "The recipe has already been sent. It cannot be changed.");
    case RecipeStore::Added::TooMany:
        throw Refusal(413, "The recipe would have too many ingredients.");
    default:
        throw Refusal(403, "The token does not belong to this recipe.");
    }
}
} // namespace

void Api::AddTo(Router& router) {
    router.Add("POST", "/halvane/api/recipes",
               [this](const Ask& ask, auto& reply) { Create(ask, reply); });
    router.Add("GET", "/halvane/api/recipes/{id}", [this](const Ask& ask, auto& reply) {
        Read(ask, reply, RecipeStore::Part::Recipe);
    });
    router.Add("GET", "/halvane/api/recipes/{id}/ingredients", [this](const Ask& ask, auto& reply) {
        Read(ask, reply, RecipeStore::Part::Ingredients);
    });
    router.Add("POST", "/halvane/api/recipes/{id}/ingredients",
               [this](const Ask& ask, auto& reply) { AddIngredients(ask, reply); });
}

/// Counts before the body is read: a refused body uses up the limit, too.
void Api::CountRecipe(const Visitor& visitor) const {
    const auto& config = service_.config;
    bool may = false;
    {
        const Pool::Lease lease(service_.pool);
        Transaction transaction(*lease);
        may = service_.limits.CountToday(*lease, "recipe", visitor, config.recipes_per_client_day,
                                         config.recipes_per_day);
        if (may)
            transaction.Commit();
    }
    if (!may)
        throw Refusal(429, "Too many recipes have been sent today. Please try again tomorrow.",
                      Refusal::Day);
}

void Api::Create(const Ask& ask, Reply& reply) const {
    CountRecipe(ask.visitor);
    const auto recipe = RecipeReader::ReadRecipe(ask.request.body);
    RecipeStore::Created created;
    {
        const Pool::Lease lease(service_.pool);
        created = RecipeStore(*lease).Create(recipe);
    }
    reply.status = 201;
    reply.SetContent("{\"RecipeID\":" + std::to_string(created.id) + ",\"token\":\"" +
                         created.token + "\"}",
                     JsonType);
}

/// Checks before the body is read: only the creator can make us read one.
void Api::RequireCreator(int id, const std::string& token) const {
    auto may = RecipeStore::Added::Done;
    {
        const Pool::Lease lease(service_.pool);
        may = RecipeStore(*lease).MayAdd(id, token);
    }
    if (may != RecipeStore::Added::Done)
        Refuse(may);
}

void Api::AddIngredients(const Ask& ask, Reply& reply) const {
    const auto token = Token(ask.request);
    if (token.empty())
        Refuse(RecipeStore::Added::WrongToken);
    RequireCreator(*ask.id, token);
    const int most = service_.config.ingredients_per_recipe;
    const auto rows = RecipeReader::ReadIngredients(ask.request.body, most);
    auto added = RecipeStore::Added::Done;
    {
        const Pool::Lease lease(service_.pool);
        added = RecipeStore(*lease).Add(*ask.id, token, rows, most);
    }
    if (added != RecipeStore::Added::Done)
        Refuse(added);
    reply.status = 201;
    reply.SetContent("{\"added\":" + std::to_string(rows.size()) + "}", JsonType);
}

void Api::Read(const Ask& ask, Reply& reply, RecipeStore::Part part) const {
    const auto guess = service_.guard.Of(ask.visitor);
    RecipeStore::Document document;
    auto verdict = MissGuard::Verdict::Found;
    {
        const Pool::Lease lease(service_.pool);
        document = RecipeStore(*lease).Read(*ask.id, part, guess);
        verdict = service_.guard.Judge(*lease, guess, document.misses, document.text.has_value());
    }
    MissGuard::Require(verdict);
    reply.SetContent(*document.text, JsonType);
}

} // namespace exchange
