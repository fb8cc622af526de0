#include "exchange/Postman.h"

#include "exchange/Log.h"
#include "exchange/Mail.h"
#include "exchange/Moment.h"
#include "exchange/RecipeStore.h"

#include <algorithm>

namespace exchange {
namespace {
constexpr int AtATime = 3;
constexpr std::chrono::seconds Interval(1);
constexpr long long GiveUpAfter = 48 * Moment::Hour;
constexpr long long LongestPause = 4 * Moment::Hour;
/// Longer than any try takes, so a claim only expires if its server is gone.
constexpr long long Claimed = 120 * Moment::Second;

/// Doubled at each try.
long long PauseAfter(int tries, int first) {
    const auto doubled = first * Moment::Second << std::min(tries, 20);
    return std::min(doubled, LongestPause);
}
} // namespace

Postman::Postman(const Service& service)
    : service_(service)
    , noMail_(service.secret) {
    if (!service_.config.Mails())
        return;
    for (int i = 0; i < AtATime; ++i)
        threads_.emplace_back([this] { Run(); });
}

Postman::~Postman() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wake_.notify_all();
    for (auto& thread : threads_)
        thread.join();
}

void Postman::Run() {
    do
        while (!ending_ && DeliverNext()) {
        }
    while (Pause());
}

/// False if the server ends.
bool Postman::Pause() {
    std::unique_lock lock(mutex_);
    return !wake_.wait_for(lock, Interval, [this] { return ending_.load(); });
}

/// False if nothing is due, or if the database does not answer.
bool Postman::DeliverNext() {
    try {
        std::optional<Outbox::Entry> entry;
        {
            const Pool::Lease lease(service_.pool);
            entry = Outbox(*lease).Claim(Moment::Now() + Claimed);
        }
        if (entry)
            Note(*entry, HandOver(*entry));
        return entry.has_value();
    } catch (const std::exception& error) {
        const auto what = Connection::Describe(error);
        Log::Error("outbox", {{"what", what}});
        return false;
    }
}

/// A mail is not sent if its recipe is hidden or removed, or if its recipient wants no more mails.
Mailer::Result Postman::HandOver(const Outbox::Entry& entry) const {
    std::optional<Recipe> recipe;
    {
        const Pool::Lease lease(service_.pool);
        if (!noMail_.Holds(*lease, entry.to))
            recipe = RecipeStore(*lease).ReadShown(entry.recipeID, {}).recipe;
    }
    if (!recipe)
        return Mailer::Result::Refused;
    recipe->from = entry.from;
    recipe->to = entry.to;
    return service_.mailer.Send(
        entry.to, MailOf(*recipe, service_.config, entry.messageID, noMail_.TokenFor(entry.to)),
        ending_);
}

/// Tries until the database answers: otherwise a mail that was sent would be sent again.
void Postman::Note(const Outbox::Entry& entry, Mailer::Result result) {
    for (;;) {
        try {
            return NoteOnce(entry, result);
        } catch (const std::exception& error) {
            const auto what = Connection::Describe(error);
            Log::Error("outbox", {{"what", what}});
            if (!Pause())
                return;
        }
    }
}

void Postman::NoteOnce(const Outbox::Entry& entry, Mailer::Result result) const {
    const Pool::Lease lease(service_.pool);
    Outbox outbox(*lease);
    const auto now = Moment::Now();
    if (result == Mailer::Result::Taken)
        return outbox.NoteSent(entry);
    if (result == Mailer::Result::Later && now - entry.queuedAt < GiveUpAfter)
        return outbox.TryLater(entry,
                               now + PauseAfter(entry.tries, service_.config.mail_retry_seconds));
    outbox.Drop(entry);
    Log::Error("mail given up", {{"tries", entry.tries + 1}});
}

} // namespace exchange
