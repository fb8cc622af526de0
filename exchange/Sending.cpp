#include "exchange/Sending.h"

#include "exchange/MailAddress.h"
#include "exchange/Outbox.h"
#include "exchange/RecipeID.h"
#include "exchange/Refusal.h"

namespace exchange {
namespace {
std::string NotAnAddress(const std::string& whose) {
    return whose + " is not valid, so your recipe was not sent. Please correct it and send the "
                   "recipe again.";
}
} // namespace

void Sending::AddTo(Router& router) {
    router.Add("GET", "/halvane/sendrecipe.asp",
               [this](const Ask& ask, auto& reply) {
                   reply.SetHeader("Cache-Control", "no-store");
                   const auto id = RecipeID::Read(ask.request.Param("recID"));
                   const auto outcome =
                       ask.request.method == "GET" && id
                           ? Send(*id, ask.visitor)
                           : Outcome{404, "There is no recipe to send under this ID."};
                   reply.status = outcome.status;
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
        throw Refusal(429, MissGuard::TooMany, Refusal::Hour);
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
    return state.sent ? AlreadySent(id) : Complete(connection, id, state.to, visitor);
}

/// All or nothing: if no mail goes out, no counter changes.
bool Sending::CompleteWithMail(Connection& connection, int id, const Visitor& visitor) const {
    Transaction transaction(connection);
    const auto recipe = RecipeStore(connection).Finish(id);
    if (!recipe || !MayMail(connection, recipe->to, visitor))
        return false;
    Outbox(connection).Add(*recipe);
    transaction.Commit();
    return true;
}

bool Sending::CompleteAlone(Connection& connection, int id) const {
    Transaction transaction(connection);
    const bool completed = RecipeStore(connection).Finish(id).has_value();
    transaction.Commit();
    return completed;
}

/// A sentence; empty if nothing here forbids a mail.
std::string Sending::WhyNoMail(Connection& connection, const std::string& to) const {
    if (!service_.config.Mails())
        return "This server sends no mail.";
    return noMail_.Holds(connection, to) ? "Your friend does not want mail from this server." : "";
}

Sending::Outcome Sending::Complete(Connection& connection, int id, const std::string& to,
                                   const Visitor& visitor) const {
    const auto number = std::to_string(id);
    const auto why = WhyNoMail(connection, to);
    if (why.empty() && CompleteWithMail(connection, id, visitor))
        return {200, "Your recipe is on its way to your friend. Its recipe ID is " + number + "."};
    if (!CompleteAlone(connection, id))
        return AlreadySent(id);
    return {200,
            "Your recipe is stored under the recipe ID " + number + ". " +
                (why.empty() ? "No mail was sent, because the limit for today is reached." : why) +
                " "
                "Please tell your friend this number. Import Recipe needs nothing else."};
}

/// For the caller's transaction.
bool Sending::MayMail(Connection& connection, const std::string& to, const Visitor& visitor) const {
    const auto& config = service_.config;
    const auto& limits = service_.limits;
    return Limits::Count(connection, limits.Daily("mail to", MailboxOf(to)),
                         config.mails_per_recipient_day) &&
           limits.CountToday(connection, "mail", visitor, config.mails_per_client_day,
                             config.mails_per_day);
}

Sending::Outcome Sending::AlreadySent(int id) {
    return {200, "This recipe has already been sent. Its recipe ID is " + std::to_string(id) + "."};
}

} // namespace exchange
