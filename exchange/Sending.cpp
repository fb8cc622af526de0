#include "exchange/Sending.h"

#include "exchange/Mail.h"
#include "exchange/MailAddress.h"
#include "exchange/RecipeID.h"

namespace exchange {
namespace {
std::string Stored(int id) {
    return "Your recipe is stored under the recipe ID " + std::to_string(id) + ". ";
}

std::string NotAnAddress(const std::string& whose) {
    return whose + " is not one that mail can be sent with, so your recipe was not sent. Please "
                   "correct it and send the recipe again.";
}
} // namespace

void Sending::AddTo(Router& router) {
    router.Add("GET", "/halvane/sendrecipe.asp",
               [this](const Ask& ask, auto& reply) {
                   const auto id = RecipeID::Read(ask.request.Param("recID"));
                   const auto outcome =
                       ask.request.method == "GET" && id
                           ? Send(*id, ask.visitor)
                           : Outcome{404, "There is no recipe to send under this ID."};
                   reply.status = outcome.status;
                   reply.SetHeader("Cache-Control", "no-store");
                   reply.SetContent(outcome.sentence, "text/plain; charset=utf-8");
               },
               {.changes = true});
}

Sending::Outcome Sending::Send(int id, const Visitor& visitor) const {
    const Pool::Lease lease(service_.pool);
    std::optional<RecipeStore::State> state;
    switch (service_.guard.Look(*lease, visitor, [&] {
        state = RecipeStore(*lease).Find(id);
        return state.has_value();
    })) {
    case MissGuard::Verdict::Found:
        return SendUnfinished(*lease, id, *state, visitor);
    case MissGuard::Verdict::TooMany:
        return {429, MissGuard::TooMany};
    default:
        return {404, "There is no recipe to send under this ID."};
    }
}

Sending::Outcome Sending::SendUnfinished(Connection& connection, int id,
                                         const RecipeStore::State& state,
                                         const Visitor& visitor) const {
    if (!state.sent && service_.config.Mails()) {
        if (!IsMailAddress(state.to))
            return {200, NotAnAddress("Your friend's email address")};
        if (!IsMailAddress(state.from))
            return {200, NotAnAddress("Your email address")};
    }
    const auto recipe = state.sent ? std::nullopt : RecipeStore(connection).Finish(id);
    if (!recipe)
        return {200,
                "This recipe has already been sent. Its recipe ID is " + std::to_string(id) + "."};
    return MailIt(connection, *recipe, visitor);
}

/// All or nothing: a mail that one of the limits forbids uses up nothing of the others.
bool Sending::MayMail(Connection& connection, const std::string& to, const Visitor& visitor) const {
    const auto& config = service_.config;
    const auto& limits = service_.limits;
    Transaction transaction(connection);
    const bool may = Limits::Count(connection, limits.Daily("mail to", MailboxOf(to)),
                                   config.mails_per_recipient_day) &&
                     limits.CountToday(connection, "mail", visitor, config.mails_per_client_day,
                                       config.mails_per_day);
    if (may)
        transaction.Commit();
    return may;
}

Sending::Outcome Sending::MailIt(Connection& connection, const Recipe& recipe,
                                 const Visitor& visitor) const {
    const auto passOn = "Please tell your friend this number: it is all that Import Recipe needs.";
    if (!service_.config.Mails())
        return {200, Stored(recipe.id) + "This server sends no mail. " + passOn};
    if (noMail_.Holds(connection, recipe.to))
        return {200, Stored(recipe.id) + "Your friend wants no mails from here. " + passOn};
    if (!MayMail(connection, recipe.to, visitor))
        return {200, Stored(recipe.id) + "No mail was sent, as the limit for today is reached. " +
                         passOn};
    if (!service_.mailer.Send(recipe.to,
                              MailOf(recipe, service_.config, noMail_.TokenFor(recipe.to))))
        return {200, Stored(recipe.id) + "The mail could not be sent just now. " + passOn};
    RecipeStore(connection).NoteMailed(recipe.id);
    return {200, "Your recipe has been sent to your friend. Its recipe ID is " +
                     std::to_string(recipe.id) + "."};
}

} // namespace exchange
